#pragma once

#include "Scene/kavoOpenScene.h"

#include <OpenSG/OSGLight.h>

#include <QAbstractTableModel>

struct kavoChanges;

/// The lights of the open scene; the check box of a row switches its light on and off.
class kavoLightModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, IdColumn, ColumnCount };

    explicit kavoLightModel(kavoOpenScene &scene, QObject *parent = nullptr);

    /// The light's node, null for a dead one.
    osg::NodePtr node(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;

    /// Two ids for each row: the light's node, and the light.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;

private:
    void reset();
    void update(const kavoChanges &changes);
    osg::LightPtr light(const QModelIndex &index) const;
    QVariant text(const QModelIndex &index) const;

    const kavoOpenScene &m_scene;
    kavoOpenScene::Entries m_entries;
};
