#include "kavoIconEngine.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

namespace {

QColor textColor(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled)
        return palette.color(QPalette::Disabled, QPalette::WindowText);
    return palette.color(
        mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText);
}

} // namespace

kavoIconEngine::kavoIconEngine(const QString &file)
    : m_file(file)
{
}

void kavoIconEngine::paint(
    QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const qreal ratio = painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
}

QPixmap kavoIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(m_file).render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), textColor(mode));
    return pixmap;
}

QIconEngine *kavoIconEngine::clone() const
{
    return new kavoIconEngine(m_file);
}
