#pragma once

#include "Views/kavoListDescription.h"
#include "Views/kavoSwatchCache.h"

#include <QAbstractItemModel>

/// The rows of one of the lists of the scene, as its description describes them.
class kavoListModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, IdColumn, ColumnCount };

    kavoListModel(
        const kavoListDescription &description, kavoOpenScene &scene, QObject *parent = nullptr);

    /// Does what the description offers on double click and Enter.
    void activate(const QModelIndex &index);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;
    /// The ids of the dragged entries, once for each entry.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;

private:
    void followEntries();
    void update(const kavoChanges &changes);
    void renderSwatches();
    void emitRowChanged(int row);
    const kavoListDescription::Entry &entry(const QModelIndex &index) const;
    osg::FieldContainerPtr shown(const QModelIndex &index) const;
    osg::FieldContainerPtr typed(const QModelIndex &index) const;
    bool isActive(const QModelIndex &index) const;
    QString text(const QModelIndex &index) const;
    QVariant nameData(const QModelIndex &index, int role) const;
    QVariant activeMark(int role) const;

    kavoListDescription m_description;
    kavoOpenScene::Entries m_entries;
    mutable kavoSwatchCache m_swatches;
};
