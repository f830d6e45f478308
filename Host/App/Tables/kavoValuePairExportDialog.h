#pragma once

#include "Tables/kavoTaskDialog.h"

class kavoExportScopeBox;

/// Asks which nodes an export of value pairs takes.
class kavoValuePairExportDialog : public kavoTaskDialog
{
    Q_OBJECT

public:
    explicit kavoValuePairExportDialog(QWidget *parent = nullptr);

    const kavoExportScopeBox &scope() const { return *m_scope; }

private:
    kavoExportScopeBox *m_scope;
};
