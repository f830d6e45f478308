#include "Tables/kavoTableExportDialog.h"

#include "Tables/kavoExportScopeBox.h"
#include "Tables/kavoTableFilterBox.h"
#include "Tables/kavoTableFormatBox.h"

#include <QMessageBox>

kavoTableExportDialog::kavoTableExportDialog(QWidget *parent)
    : kavoTaskDialog(tr("Export Table"), tr("&Export..."), parent)
    , m_scope(add(new kavoExportScopeBox))
    , m_filter(add(new kavoTableFilterBox))
    , m_format(add(new kavoTableFormatBox(kavoTableFormatBox::Export)))
{
}

kavoTableOptions kavoTableExportDialog::options() const
{
    kavoTableOptions options;
    m_filter->apply(options);
    m_format->apply(options);
    options.takesAllNodes = m_scope->takesAllNodes();
    return options;
}

void kavoTableExportDialog::accept()
{
    const QString error = m_filter->error();
    if (!error.isEmpty()) {
        QMessageBox::warning(this, windowTitle(), error);
        return;
    }
    m_format->remember();
    kavoTaskDialog::accept();
}
