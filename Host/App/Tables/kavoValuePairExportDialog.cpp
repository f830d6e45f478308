#include "Tables/kavoValuePairExportDialog.h"

#include "Tables/kavoExportScopeBox.h"

kavoValuePairExportDialog::kavoValuePairExportDialog(QWidget *parent)
    : kavoTaskDialog(tr("Export Value Pairs"), tr("&Export..."), parent)
    , m_scope(add(new kavoExportScopeBox))
{
}
