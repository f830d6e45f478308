#include "Window/kavoLoadProgress.h"

#include <kavoIconManager.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QShortcut>
#include <QToolButton>

kavoLoadProgress::kavoLoadProgress(QWidget *parent)
    : QWidget(parent)
    , m_what(new QLabel)
    , m_bar(new QProgressBar)
{
    setObjectName(QStringLiteral("loadProgress"));
    auto *cancel = new QToolButton;
    cancel->setObjectName(QStringLiteral("cancel"));
    cancel->setIcon(kavoIconManager::getIcon("Cancel"));
    cancel->setToolTip(tr("Cancel loading (Esc)"));
    cancel->setAutoRaise(true);
    m_bar->setRange(0, 100);
    m_bar->setFixedWidth(200);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_what);
    layout->addWidget(m_bar);
    layout->addWidget(cancel);
    connect(cancel, &QToolButton::clicked, this, &kavoLoadProgress::cancelRequested);
    // Not the shortcut of the button, which would animate the button before it cancels.
    auto *escape = new QShortcut(Qt::Key_Escape, this);
    connect(escape, &QShortcut::activated, this, &kavoLoadProgress::cancelRequested);
    hide();
}

void kavoLoadProgress::report(int percent, const QString &what)
{
    m_what->setText(what);
    m_bar->setValue(percent);
    setVisible(true);
}
