#include "Window/kavoLogView.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QToolButton>

kavoLogView::kavoLogView(QWidget *parent)
    : QWidget(parent)
    , m_level(new QComboBox)
    , m_text(new QPlainTextEdit)
{
    m_level->addItems({ tr("Everything"), tr("Warnings and errors"), tr("Errors") });
    m_level->setAccessibleName(tr("Lines to show"));
    m_text->setAccessibleName(tr("Log"));
    m_text->setReadOnly(true);
    m_text->setMaximumBlockCount(static_cast<int>(kavoLog::historyLimit));
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto *clear = new QToolButton;
    clear->setText(tr("Clear"));

    auto *bar = new QHBoxLayout;
    bar->addWidget(m_level);
    bar->addStretch();
    bar->addWidget(clear);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(bar);
    layout->addWidget(m_text);

    connect(clear, &QToolButton::clicked, this, &kavoLogView::clear);
    connect(m_level, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        &kavoLogView::showEntries);
    for (const kavoLog::Entry &entry : kavoLog::history())
        add(entry);
    // Queued, because any thread may log at any time.
    m_observer = kavoLog::addObserver([this](const kavoLog::Entry &entry) {
        QMetaObject::invokeMethod(
            this, [this, entry] { add(entry); }, Qt::QueuedConnection);
    });
}

kavoLogView::~kavoLogView()
{
    kavoLog::removeObserver(m_observer);
}

void kavoLogView::add(const kavoLog::Entry &entry)
{
    m_entries.push_back(entry);
    if (m_entries.size() > kavoLog::historyLimit)
        m_entries.pop_front();
    showEntry(entry);
}

void kavoLogView::showEntry(const kavoLog::Entry &entry)
{
    if (static_cast<int>(entry.level) < m_level->currentIndex())
        return;
    m_text->appendPlainText(QStringLiteral("%1: %2").arg(
        kavoLog::levelName(entry.level), QString::fromStdString(entry.text)));
}

void kavoLogView::showEntries()
{
    m_text->clear();
    for (const kavoLog::Entry &entry : m_entries)
        showEntry(entry);
}

void kavoLogView::clear()
{
    m_entries.clear();
    m_text->clear();
}
