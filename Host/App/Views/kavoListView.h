#pragma once

#include "Views/kavoListKind.h"

#include <QTreeView>

/// A window with one of the lists of the scene (kavoListKinds). Rows can be dragged away, several
/// at once; a double click or Enter activates a row.
class kavoListView : public QTreeView
{
    Q_OBJECT

public:
    kavoListView(const kavoListKind &kind, kavoOpenScene &scene, QWidget *parent = nullptr);

signals:
    /// Emitted after the kind has handled the activation.
    void rowActivated();

private:
    void setUpColumns();
};
