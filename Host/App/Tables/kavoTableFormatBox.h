#pragma once

#include "Tables/kavoTableOptions.h"

#include <QGroupBox>

class QCheckBox;
class QComboBox;
class QFormLayout;

/// Asks for the format of a table. At an import the format and the delimiter are found out, so only
/// what cannot be is asked for.
class kavoTableFormatBox : public QGroupBox
{
    Q_OBJECT

public:
    enum Purpose { Export, Import };

    /// Begins with what was remembered last.
    explicit kavoTableFormatBox(Purpose purpose, QWidget *parent = nullptr);

    /// Sets what was chosen here; leaves the rest alone.
    void apply(kavoTableOptions &options) const;
    /// Keeps the choices for the next box, in this run and in later ones.
    void remember() const;

private:
    void recall();
    void addExportRows(QFormLayout *layout);

    // Null at an import:
    QComboBox *m_format = nullptr;
    QComboBox *m_delimiter = nullptr;
    QCheckBox *m_byteOrderMark = nullptr;
    // Always there:
    QComboBox *m_decimalSeparator;
    QCheckBox *m_guardsFormulas;
};
