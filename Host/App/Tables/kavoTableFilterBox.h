#pragma once

#include "Tables/kavoTableOptions.h"

#include <QGroupBox>

class QLineEdit;

/// Asks which columns and rows a table gets. Empty lines mean all.
class kavoTableFilterBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit kavoTableFilterBox(QWidget *parent = nullptr);

    /// What is wrong with what was entered, empty if nothing is.
    QString error() const;
    /// Sets what was chosen here; leaves the rest alone.
    void apply(kavoTableOptions &options) const;

private:
    QLineEdit *addLine(const QString &label);

    QLineEdit *m_keys;
    QLineEdit *m_nodeNames;
    QLineEdit *m_coreTypes;
    QLineEdit *m_nodeKeys;
};
