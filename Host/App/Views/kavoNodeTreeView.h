#pragma once

#include <QTimer>
#include <QWidget>

class QAction;
class QLineEdit;
class QTreeView;
class kavoOpenScene;
class kavoNodeTreeModel;

/// The Scene window: the node tree with a filter. The tree follows the host's selection and sets
/// it. In the tree, Del deletes the selected node after a question and Escape clears the selection.
/// In the filter, Escape clears the filter and Down moves to the tree.
class kavoNodeTreeView : public QWidget
{
    Q_OBJECT

public:
    explicit kavoNodeTreeView(kavoOpenScene &scene, QWidget *parent = nullptr);

    QTreeView *tree() const { return m_tree; }
    QLineEdit *filter() const { return m_filter; }
    /// The command that deletes the selected node after a question.
    QAction *deletion() const { return m_deletion; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpTree();
    void setUpFilter();
    void setUpDeletion();
    bool react(const QObject *widget, int key);
    void applyFilter();
    void showAll();
    void showSelection();
    void select();
    void selectNothing();
    void enterTree();
    void confirmDeletion();
    void dropLostSelection();

    kavoNodeTreeModel *m_model;
    const kavoOpenScene &m_scene;
    QLineEdit *m_filter;
    QTreeView *m_tree;
    QAction *m_deletion;
    QTimer m_filterDelay;
    bool m_following = false; // true while the tree changes its selection on its own
};
