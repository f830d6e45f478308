#include "Views/kavoCameraView.h"

#include "Views/kavoCameraModel.h"
#include "Views/kavoListSetup.h"

kavoCameraView::kavoCameraView(kavoOpenScene &scene, QWidget *parent)
    : QTreeView(parent)
    , m_model(new kavoCameraModel(scene, this))
{
    kavoListSetup::apply(*this, *m_model);
    setRootIsDecorated(false);
    setAccessibleName(tr("Cameras of the scene"));
    connect(this, &QAbstractItemView::activated, m_model, &kavoCameraModel::activate);
    connect(
        m_model, &kavoCameraModel::activeCameraChanged, this, &kavoCameraView::activeCameraChanged);
}
