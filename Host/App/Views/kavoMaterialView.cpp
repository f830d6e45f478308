#include "Views/kavoMaterialView.h"

#include "Views/kavoListSetup.h"
#include "Views/kavoMaterialModel.h"

#include <kavoCallNames.h>
#include <kavoController.h>
#include <kavoMessage.h>

kavoMaterialView::kavoMaterialView(kavoOpenScene &scene, QWidget *parent)
    : QTreeView(parent)
    , m_model(new kavoMaterialModel(scene, this))
{
    kavoListSetup::apply(*this, *m_model);
    setAccessibleName(tr("Materials of the scene"));
    setIconSize({ kavoMaterialModel::swatchSize, kavoMaterialModel::swatchSize });
    setExpandsOnDoubleClick(false);
    connect(m_model, &QAbstractItemModel::modelReset, this, &QTreeView::expandAll);
    connect(this, &QAbstractItemView::activated, this, &kavoMaterialView::showInEditor);
    expandAll();
}

void kavoMaterialView::showInEditor(const QModelIndex &index)
{
    const osg::MaterialPtr material = m_model->material(index);
    if (material == osg::NullFC)
        return;
    kavoMessage message;
    message.set("material", material);
    kavoController::call(kavoCallNames::updateNodeEditorByMaterial, message, 0);
}
