#include "Tables/kavoTableFormatBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QSettings>

namespace {

const char settingsGroup[] = "tableFormat";

// Some widgets are null at an import.
void recall(const QSettings &settings, QComboBox *box, const char *key)
{
    const int place = box ? box->findData(settings.value(key)) : -1;
    if (place >= 0)
        box->setCurrentIndex(place);
}

void recall(const QSettings &settings, QCheckBox *box, const char *key)
{
    if (box)
        box->setChecked(settings.value(key, box->isChecked()).toBool());
}

void remember(QSettings &settings, const QComboBox *box, const char *key)
{
    if (box)
        settings.setValue(key, box->currentData());
}

void remember(QSettings &settings, const QCheckBox *box, const char *key)
{
    if (box)
        settings.setValue(key, box->isChecked());
}

} // namespace

kavoTableFormatBox::kavoTableFormatBox(bool isForExport, QWidget *parent)
    : QGroupBox(tr("Format"), parent)
{
    auto *layout = new QFormLayout(this);
    if (isForExport)
        addExportRows(layout);
    m_decimalSeparator = new QComboBox(this);
    m_decimalSeparator->addItem(tr("Point"), QChar('.'));
    m_decimalSeparator->addItem(tr("Comma"), QChar(','));
    m_guardsFormulas = new QCheckBox(tr("Put an apostrophe before &formulas"), this);
    m_guardsFormulas->setChecked(true);
    layout->addRow(tr("&Decimal separator:"), m_decimalSeparator);
    layout->addRow(m_guardsFormulas);
    recall();
}

void kavoTableFormatBox::addExportRows(QFormLayout *layout)
{
    m_format = new QComboBox(this);
    m_format->addItem(tr("CSV"), kavoTableOptions::Csv);
    m_format->addItem(tr("JSON Lines"), kavoTableOptions::JsonLines);
    m_delimiter = new QComboBox(this);
    m_delimiter->addItem(tr("Comma"), QStringLiteral("comma"));
    m_delimiter->addItem(tr("Semicolon"), QStringLiteral("semicolon"));
    m_delimiter->addItem(tr("Tab"), QStringLiteral("tab"));
    m_byteOrderMark = new QCheckBox(tr("Begin with a &byte order mark"), this);
    layout->addRow(tr("F&ormat:"), m_format);
    layout->addRow(tr("De&limiter:"), m_delimiter);
    layout->addRow(m_byteOrderMark);
}

void kavoTableFormatBox::recall()
{
    QSettings settings;
    settings.beginGroup(settingsGroup);
    ::recall(settings, m_format, "format");
    ::recall(settings, m_delimiter, "delimiter");
    ::recall(settings, m_decimalSeparator, "decimalSeparator");
    ::recall(settings, m_byteOrderMark, "byteOrderMark");
    ::recall(settings, m_guardsFormulas, "guardsFormulas");
}

void kavoTableFormatBox::remember() const
{
    QSettings settings;
    settings.beginGroup(settingsGroup);
    ::remember(settings, m_format, "format");
    ::remember(settings, m_delimiter, "delimiter");
    ::remember(settings, m_decimalSeparator, "decimalSeparator");
    ::remember(settings, m_byteOrderMark, "byteOrderMark");
    ::remember(settings, m_guardsFormulas, "guardsFormulas");
}

void kavoTableFormatBox::apply(kavoTableOptions &options) const
{
    options.decimalSeparator = m_decimalSeparator->currentData().toChar().toLatin1();
    options.guardsFormulas = m_guardsFormulas->isChecked();
    if (!m_format)
        return;
    options.format = kavoTableOptions::Format(m_format->currentData().toInt());
    options.setDelimiter(m_delimiter->currentData().toString());
    options.startsWithByteOrderMark = m_byteOrderMark->isChecked();
}
