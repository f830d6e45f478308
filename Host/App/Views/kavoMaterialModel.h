#pragma once

#include "Scene/kavoOpenScene.h"

#include <OpenSG/OSGMaterial.h>

#include <QAbstractItemModel>
#include <QIcon>

struct kavoChanges;

/// The materials of the open scene: a row for each node that holds one (its core is a material
/// group), below it the material with its picture. Pictures are made when they are looked at.
class kavoMaterialModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, IdColumn, ColumnCount };

    /// Width and height of the pictures, in pixels.
    static constexpr int swatchSize = 32;

    explicit kavoMaterialModel(kavoOpenScene &scene, QObject *parent = nullptr);

    /// The material of a row, be it the node's or the material's own; null if it is dead or unset.
    osg::MaterialPtr material(const QModelIndex &index) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;

    /// Two ids for each node among the rows: the node's and its material's.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;

private:
    struct Swatch
    {
        QIcon icon;
        QVector<osg::UInt32> sources;
    };

    void reset();
    void renderAll();
    void update(const kavoChanges &changes);
    void emitRowChanged(int row);
    const kavoOpenScene::Entry &entry(const QModelIndex &index) const;
    osg::FieldContainerPtr container(const QModelIndex &index) const;
    const Swatch &swatch(osg::UInt32 material) const;

    const kavoOpenScene &m_scene;
    kavoOpenScene::Entries m_entries;
    mutable QHash<osg::UInt32, Swatch> m_swatches; // by material
};
