#include "Tables/kavoTableImportDialog.h"

#include "Tables/kavoTableFormatBox.h"

kavoTableImportDialog::kavoTableImportDialog(QWidget *parent)
    : kavoTaskDialog(tr("Import Table"), tr("&Import"), parent)
    , m_format(add(new kavoTableFormatBox(kavoTableFormatBox::Import)))
{
}

kavoTableOptions kavoTableImportDialog::options(const QString &fileName) const
{
    kavoTableOptions options;
    m_format->apply(options);
    options.format = kavoTableOptions::formatOf(fileName);
    return options;
}

void kavoTableImportDialog::accept()
{
    m_format->remember();
    kavoTaskDialog::accept();
}
