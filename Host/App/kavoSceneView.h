#pragma once

#include <QTimer>
#include <QWidget>

class QLineEdit;
class QTreeView;
class kavoChangeMonitor;
class kavoSceneEvents;
class kavoSceneIndex;
class kavoSceneModel;

/// The Scene window: the node tree, in step with the host's selection both ways, with a filter.
/// Del deletes the selected node after a question, Escape selects nothing.
class kavoSceneView : public QWidget
{
    Q_OBJECT

public:
    kavoSceneView(kavoSceneEvents &events, kavoChangeMonitor &monitor, const kavoSceneIndex &index,
        QWidget *parent = nullptr);

    QTreeView *tree() const { return m_tree; }
    QLineEdit *filter() const { return m_filter; }

private:
    void setUpTree();
    void setUpFilter();
    void addKey(const QKeySequence &key, void (kavoSceneView::*reaction)());
    void applyFilter();
    void showAll();
    void showSelection();
    void select();
    void selectNothing();
    void confirmDeletion();
    void dropLostSelection();

    kavoSceneModel *m_model;
    const kavoSceneIndex &m_index;
    QLineEdit *m_filter;
    QTreeView *m_tree;
    QTimer m_filterDelay;
    bool m_following = false; // the tree's selection changes, but not by the user
};
