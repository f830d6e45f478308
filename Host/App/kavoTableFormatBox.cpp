#include "kavoTableFormatBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>

kavoTableFormatBox::kavoTableFormatBox(Purpose purpose, QWidget *parent)
    : QGroupBox(tr("Format"), parent)
    , m_format(new QComboBox(this))
    , m_delimiter(new QComboBox(this))
    , m_decimalSeparator(new QComboBox(this))
    , m_byteOrderMark(new QCheckBox(tr("Begin with a &byte order mark"), this))
    , m_guardsFormulas(new QCheckBox(tr("Put an apostrophe before &formulas"), this))
{
    m_format->addItem(tr("CSV"), kavoTableOptions::Csv);
    m_format->addItem(tr("JSON Lines"), kavoTableOptions::JsonLines);
    m_delimiter->addItem(tr("Comma"), QStringLiteral("comma"));
    m_delimiter->addItem(tr("Semicolon"), QStringLiteral("semicolon"));
    m_delimiter->addItem(tr("Tab"), QStringLiteral("tab"));
    m_decimalSeparator->addItem(tr("Point"), QChar('.'));
    m_decimalSeparator->addItem(tr("Comma"), QChar(','));
    m_guardsFormulas->setChecked(true);
    auto *layout = new QFormLayout(this);
    if (purpose == Export)
        addExportRows(layout);
    for (QWidget *exportOnly : { static_cast<QWidget *>(m_format),
             static_cast<QWidget *>(m_delimiter), static_cast<QWidget *>(m_byteOrderMark) })
        exportOnly->setVisible(purpose == Export);
    layout->addRow(tr("&Decimal separator:"), m_decimalSeparator);
    layout->addRow(m_guardsFormulas);
}

void kavoTableFormatBox::addExportRows(QFormLayout *layout)
{
    layout->addRow(tr("F&ormat:"), m_format);
    layout->addRow(tr("De&limiter:"), m_delimiter);
    layout->addRow(m_byteOrderMark);
}

void kavoTableFormatBox::apply(kavoTableOptions &options) const
{
    options.format = kavoTableOptions::Format(m_format->currentData().toInt());
    options.setDelimiter(m_delimiter->currentData().toString());
    options.decimalSeparator = m_decimalSeparator->currentData().toChar().toLatin1();
    options.startsWithByteOrderMark = m_byteOrderMark->isChecked();
    options.guardsFormulas = m_guardsFormulas->isChecked();
}
