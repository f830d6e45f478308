#include "Tables/kavoTableFilterBox.h"

#include <QFormLayout>
#include <QLineEdit>

kavoTableFilterBox::kavoTableFilterBox(QWidget *parent)
    : QGroupBox(tr("Only"), parent)
{
    new QFormLayout(this);
    m_keys = addLine(tr("&Keys:"));
    m_nodeNames = addLine(tr("&Names of nodes:"));
    m_coreTypes = addLine(tr("&Types of cores:"));
    m_nodeKeys = addLine(tr("Nodes with one of the ke&ys:"));
}

QLineEdit *kavoTableFilterBox::addLine(const QString &label)
{
    auto *line = new QLineEdit;
    line->setPlaceholderText(tr("all, or patterns such as mass*;color"));
    static_cast<QFormLayout *>(layout())->addRow(label, line);
    return line;
}

QString kavoTableFilterBox::error() const
{
    for (const QLineEdit *line : { m_keys, m_nodeNames, m_coreTypes, m_nodeKeys }) {
        const QString error = kavoPatterns(line->text()).error();
        if (!error.isEmpty())
            return error;
    }
    return QString();
}

void kavoTableFilterBox::apply(kavoTableOptions &options) const
{
    options.keys = kavoPatterns(m_keys->text());
    options.nodeNames = kavoPatterns(m_nodeNames->text());
    options.coreTypes = kavoPatterns(m_coreTypes->text());
    options.nodeKeys = kavoPatterns(m_nodeKeys->text());
}
