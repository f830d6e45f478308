#pragma once

#include <OpenSG/OSGNode.h>

#include <QAbstractTableModel>
#include <vector>

class kavoOpenScene;
struct kavoChanges;

/// The cameras of the open scene, each by the node that places it; the active one is marked.
class kavoCameraModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, IdColumn, ColumnCount };

    explicit kavoCameraModel(kavoOpenScene &scene, QObject *parent = nullptr);

    /// Makes the camera of the row the active one.
    void activate(const QModelIndex &index);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;

    /// One id for each row: the camera's node.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;

signals:
    void activeCameraChanged();

private:
    void reset();
    void update(const kavoChanges &changes);
    QVariant text(osg::UInt32 nodeId, int column) const;

    std::vector<osg::UInt32> m_nodeIds;
};
