#include "Views/kavoLightView.h"

#include "Views/kavoLightModel.h"
#include "Views/kavoListSetup.h"

#include <kavoScenegraph.h>

kavoLightView::kavoLightView(kavoOpenScene &scene, QWidget *parent)
    : QTreeView(parent)
    , m_model(new kavoLightModel(scene, this))
{
    kavoListSetup::apply(*this, *m_model);
    setRootIsDecorated(false);
    setAccessibleName(tr("Lights of the scene"));
    connect(this, &QAbstractItemView::activated, this,
        [this](const QModelIndex &row) { kavoScenegraph::setSelectedNode(m_model->node(row)); });
}
