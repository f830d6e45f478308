#pragma once

#include "Tables/kavoTableOptions.h"
#include "Tables/kavoTaskDialog.h"

class kavoTableFormatBox;

/// Asks how a table was exported, as far as it cannot be seen.
class kavoTableImportDialog : public kavoTaskDialog
{
    Q_OBJECT

public:
    explicit kavoTableImportDialog(QWidget *parent = nullptr);

    /// Options for reading that file.
    kavoTableOptions options(const QString &fileName) const;
    void accept() override;

private:
    kavoTableFormatBox *m_format;
};
