#include "kavoScreenColorPicker.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

#include <map>

namespace {

// Number of pixels on each side of the pointer, and the size of a magnified pixel.
constexpr int reach = 5;
constexpr int zoom = 11;
constexpr int side = (2 * reach + 1) * zoom;
constexpr int captionHeight = 22;
constexpr int distance = 18;

} // namespace

bool kavoScreenColorPicker::isAvailable()
{
    QScreen *screen = QGuiApplication::primaryScreen();
    return screen && !screen->grabWindow(0, 0, 0, 1, 1).isNull();
}

kavoScreenColorPicker::kavoScreenColorPicker(QWidget *parent)
    : QWidget(parent, Qt::Popup | Qt::FramelessWindowHint)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("screenColorPicker"));
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setAccessibleName(tr("Pick a color from the screen"));
}

void kavoScreenColorPicker::start()
{
    const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
    for (QScreen *screen : QGuiApplication::screens()) {
        const QRect rect = screen->geometry().translated(-desktop.topLeft());
        m_shots.push_back({ rect, screen->grabWindow(0).toImage() });
    }
    setGeometry(desktop);
    m_position = QCursor::pos() - desktop.topLeft();
    show();
    setFocus();
}

QColor kavoScreenColorPicker::colorAt(const QPoint &position) const
{
    for (const Shot &shot : m_shots) {
        if (!shot.rect.contains(position))
            continue;
        const QPoint pixel = (position - shot.rect.topLeft()) * shot.image.devicePixelRatio();
        return shot.image.valid(pixel) ? shot.image.pixelColor(pixel) : QColor();
    }
    return {};
}

// Places the magnifier right below the pointer, or on other sides near the right and lower edges.
QRect kavoScreenColorPicker::magnifierRect() const
{
    QRect rect(m_position + QPoint(distance, distance), QSize(side, side + captionHeight));
    if (rect.right() > width())
        rect.moveRight(m_position.x() - distance);
    if (rect.bottom() > height())
        rect.moveBottom(m_position.y() - distance);
    return rect;
}

void kavoScreenColorPicker::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    for (const Shot &shot : m_shots)
        painter.drawImage(shot.rect, shot.image);
    paintMagnifier(&painter);
}

void kavoScreenColorPicker::paintMagnifier(QPainter *painter) const
{
    const QRect frame = magnifierRect();
    painter->fillRect(frame, palette().window());
    for (int y = -reach; y <= reach; ++y) {
        for (int x = -reach; x <= reach; ++x) {
            const QPoint corner((x + reach) * zoom, (y + reach) * zoom);
            const QColor color = colorAt(m_position + QPoint(x, y));
            painter->fillRect(QRect(frame.topLeft() + corner, QSize(zoom, zoom)), color);
        }
    }
    const QRect center(frame.topLeft() + QPoint(reach * zoom, reach * zoom), QSize(zoom, zoom));
    painter->setPen(Qt::black);
    painter->drawRect(center.adjusted(0, 0, -1, -1));
    painter->setPen(Qt::white);
    painter->drawRect(center.adjusted(-1, -1, 0, 0));
    painter->setPen(palette().color(QPalette::WindowText));
    painter->drawRect(frame.adjusted(0, 0, -1, -1));
    const QRect caption(frame.left(), frame.top() + side, side, captionHeight);
    painter->drawText(caption, Qt::AlignCenter, colorAt(m_position).name());
}

void kavoScreenColorPicker::mouseMoveEvent(QMouseEvent *event)
{
    moveTo(event->pos());
}

void kavoScreenColorPicker::mouseReleaseEvent(QMouseEvent *event)
{
    moveTo(event->pos());
    if (event->button() == Qt::LeftButton)
        pick();
    else
        close();
}

void kavoScreenColorPicker::keyPressEvent(QKeyEvent *event)
{
    static const std::map<int, QPoint> steps { { Qt::Key_Left, { -1, 0 } },
        { Qt::Key_Right, { 1, 0 } }, { Qt::Key_Up, { 0, -1 } }, { Qt::Key_Down, { 0, 1 } } };
    const auto step = steps.find(event->key());
    if (step != steps.end())
        QCursor::setPos(mapToGlobal(m_position + step->second));
    else if (event->key() == Qt::Key_Escape)
        close();
    else if (QList<int> { Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space }.contains(event->key()))
        pick();
    else
        QWidget::keyPressEvent(event);
}

void kavoScreenColorPicker::moveTo(const QPoint &position)
{
    m_position = position;
    update();
}

void kavoScreenColorPicker::pick()
{
    const QColor color = colorAt(m_position);
    if (color.isValid())
        emit picked(color);
    close();
}
