#pragma once

#include "Views/kavoListDescription.h"

#include <QTreeView>

/// A window with one of the lists of the scene (kavoHostLists). Rows can be dragged away, several
/// at once; a double click or Enter activates a row.
class kavoListView : public QTreeView
{
    Q_OBJECT

public:
    kavoListView(
        const kavoListDescription &description, kavoOpenScene &scene, QWidget *parent = nullptr);

signals:
    /// Emitted after the description has handled the activation.
    void rowActivated();

private:
    void setUpColumns();
};
