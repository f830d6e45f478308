#pragma once

#include "Tables/kavoTableOptions.h"
#include "Tables/kavoTaskDialog.h"

class kavoExportScopeBox;
class kavoTableFilterBox;
class kavoTableFormatBox;

/// Asks what a table of value pairs shall have and look like.
class kavoTableExportDialog : public kavoTaskDialog
{
    Q_OBJECT

public:
    explicit kavoTableExportDialog(QWidget *parent = nullptr);

    const kavoExportScopeBox &scope() const { return *m_scope; }
    kavoTableOptions options() const;
    /// Stays open, with an explanation, if patterns are wrong.
    void accept() override;

private:
    kavoExportScopeBox *m_scope;
    kavoTableFilterBox *m_filter;
    kavoTableFormatBox *m_format;
};
