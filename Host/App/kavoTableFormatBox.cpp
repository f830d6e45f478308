#include "kavoTableFormatBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QSettings>

namespace {

const char settingsGroup[] = "tableFormat";

void recall(const QSettings &settings, QComboBox &box, const char *key)
{
    const int place = box.findData(settings.value(key));
    if (place >= 0)
        box.setCurrentIndex(place);
}

void recall(const QSettings &settings, QCheckBox &box, const char *key)
{
    box.setChecked(settings.value(key, box.isChecked()).toBool());
}

}

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
    recall();
}

void kavoTableFormatBox::addExportRows(QFormLayout *layout)
{
    layout->addRow(tr("F&ormat:"), m_format);
    layout->addRow(tr("De&limiter:"), m_delimiter);
    layout->addRow(m_byteOrderMark);
}

void kavoTableFormatBox::recall()
{
    QSettings settings;
    settings.beginGroup(settingsGroup);
    ::recall(settings, *m_format, "format");
    ::recall(settings, *m_delimiter, "delimiter");
    ::recall(settings, *m_decimalSeparator, "decimalSeparator");
    ::recall(settings, *m_byteOrderMark, "byteOrderMark");
    ::recall(settings, *m_guardsFormulas, "guardsFormulas");
}

void kavoTableFormatBox::remember() const
{
    QSettings settings;
    settings.beginGroup(settingsGroup);
    settings.setValue("format", m_format->currentData());
    settings.setValue("delimiter", m_delimiter->currentData());
    settings.setValue("decimalSeparator", m_decimalSeparator->currentData());
    settings.setValue("byteOrderMark", m_byteOrderMark->isChecked());
    settings.setValue("guardsFormulas", m_guardsFormulas->isChecked());
}

void kavoTableFormatBox::apply(kavoTableOptions &options) const
{
    options.format = kavoTableOptions::Format(m_format->currentData().toInt());
    options.setDelimiter(m_delimiter->currentData().toString());
    options.decimalSeparator = m_decimalSeparator->currentData().toChar().toLatin1();
    options.startsWithByteOrderMark = m_byteOrderMark->isChecked();
    options.guardsFormulas = m_guardsFormulas->isChecked();
}
