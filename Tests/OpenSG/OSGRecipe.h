#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGMFBaseTypes.h>

#include <QVector>

OSG_BEGIN_NAMESPACE

class Recipe;
typedef FCPtr<AttachmentPtr, Recipe> RecipePtr;

/// An attachment with two lists of strings, everything spelt out.
class Recipe : public Attachment
{
    typedef Attachment Inherited;

public:
    typedef RecipePtr Ptr;

    enum {
        IngredientsFieldId = Inherited::NextFieldId,
        StepsFieldId = IngredientsFieldId + 1,
        NextFieldId = StepsFieldId + 1
    };
    static const BitVector IngredientsFieldMask;
    static const BitVector StepsFieldMask;

    static FieldContainerType &getClassType(void) { return _type; }
    static UInt32 getClassTypeId(void) { return _type.getId(); }
    virtual FieldContainerType &getType(void) { return _type; }
    virtual const FieldContainerType &getType(void) const { return _type; }
    virtual UInt32 getContainerSize(void) const { return sizeof(Recipe); }

    static RecipePtr create(void)
    {
        RecipePtr fc;
        if (getClassType().getPrototype() != NullFC) {
            fc = RecipePtr::dcast(getClassType().getPrototype()->shallowCopy());
        }
        return fc;
    }
    static RecipePtr createEmpty(void)
    {
        RecipePtr fc;
        newPtr(fc);
        return fc;
    }
    virtual FieldContainerPtr shallowCopy(void) const
    {
        RecipePtr fc;
        newPtr(fc, this);
        return fc;
    }

    MFString *getMFIngredients(void) { return &_mfIngredients; }
    MFString *getMFSteps(void) { return &_mfSteps; }
    MFString &getIngredients(void) { return _mfIngredients; }
    MFString &getSteps(void) { return _mfSteps; }

    virtual void changed(BitVector whichField, UInt32 origin)
    {
        changedMasks.append(whichField);
        Inherited::changed(whichField, origin);
    }
    virtual void dump(UInt32 = 0, const BitVector = 0) const { }

    static QVector<quint64> changedMasks;

protected:
    Recipe(void)
        : Inherited()
        , _mfIngredients()
        , _mfSteps()
    {
    }
    Recipe(const Recipe &source)
        : Inherited(source)
        , _mfIngredients(source._mfIngredients)
        , _mfSteps(source._mfSteps)
    {
    }
    virtual ~Recipe(void) { }

    void executeSyncImpl(Recipe *other, const BitVector &which)
    {
        Inherited::executeSyncImpl(other, which);
        if (FieldBits::NoField != (IngredientsFieldMask & which)) {
            _mfIngredients.syncWith(other->_mfIngredients);
        }
        if (FieldBits::NoField != (StepsFieldMask & which)) {
            _mfSteps.syncWith(other->_mfSteps);
        }
    }
    virtual void executeSync(FieldContainer &other, const BitVector &which)
    {
        executeSyncImpl(static_cast<Recipe *>(&other), which);
    }

    MFString _mfIngredients;
    MFString _mfSteps;

private:
    friend class FieldContainer;

    static void initMethod(void) { ++initCalls; }
    static int initCalls;
    friend int recipeInitCalls();

    static FieldDescription *_desc[];
    static FieldContainerType _type;

    void operator=(const Recipe &);
};

int recipeInitCalls();

OSG_END_NAMESPACE
