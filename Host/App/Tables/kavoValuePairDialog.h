#pragma once

#include "Tables/kavoTableOptions.h"

#include <OpenSG/OSGNodePtr.h>

#include <QDialog>
#include <QList>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QRadioButton;
class kavoTableFormatBox;

/// Asks for the options of an export or import of value pairs.
class kavoValuePairDialog : public QDialog
{
    Q_OBJECT

public:
    enum Task { ExportValuePairs, ExportTable, ImportTable };

    kavoValuePairDialog(Task task, QWidget *parent);

    /// Returns the node to export: the root of the scene or the selected node; null without a
    /// scene.
    osg::NodePtr root() const;
    /// Options that the task does not ask for have their defaults.
    kavoTableOptions options() const;

    /// Remembers the format for the next dialog. If a pattern is wrong, explains it and stays open.
    void accept() override;

private:
    QGroupBox *createNodesBox();
    QGroupBox *createFilterBox();
    QString filterError() const;

    // Null if the task does not ask for it:
    QRadioButton *m_selection = nullptr;
    QCheckBox *m_allNodes = nullptr;
    kavoTableFormatBox *m_format = nullptr;

    QList<QLineEdit *> m_filters; ///< empty if the task does not ask for filters
};
