#pragma once

#include "Tables/kavoTableOptions.h"

#include <QGroupBox>

class QCheckBox;
class QComboBox;
class QFormLayout;

/// Asks for the format of a table, and remembers the answers from one run of the program to the
/// next.
class kavoTableFormatBox : public QGroupBox
{
    Q_OBJECT

public:
    /// \param isForExport If false, the box leaves out what an import detects: format, delimiter
    /// and byte order mark.
    explicit kavoTableFormatBox(bool isForExport, QWidget *parent = nullptr);

    /// Sets the options that the box shows, and no others.
    void apply(kavoTableOptions &options) const;
    /// Stores the choices for the next box.
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
