#include "OSGRecipe.h"

#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGFieldDescription.h>

OSG_BEGIN_NAMESPACE

QVector<quint64> Recipe::changedMasks;
int Recipe::initCalls = 0;

const BitVector Recipe::IngredientsFieldMask
    = (TypeTraits<BitVector>::One << Recipe::IngredientsFieldId);
const BitVector Recipe::StepsFieldMask = (TypeTraits<BitVector>::One << Recipe::StepsFieldId);

FieldDescription *Recipe::_desc[]
    = { new FieldDescription(MFString::getClassType(), "ingredients", Recipe::IngredientsFieldId,
            Recipe::IngredientsFieldMask, false, (FieldAccessMethod)&Recipe::getMFIngredients),
          new FieldDescription(MFString::getClassType(), "steps", Recipe::StepsFieldId,
              Recipe::StepsFieldMask, false, (FieldAccessMethod)&Recipe::getMFSteps) };

FieldContainerType Recipe::_type("Recipe", "Attachment", NULL,
    (PrototypeCreateF)&Recipe::createEmpty, Recipe::initMethod, Recipe::_desc,
    sizeof(Recipe::_desc));

int recipeInitCalls()
{
    return Recipe::initCalls;
}

OSG_END_NAMESPACE
