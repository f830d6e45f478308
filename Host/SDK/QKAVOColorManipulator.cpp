#include <QKAVOColorManipulator.h>

#include "kavoColorPopup.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>

#include <cmath>

namespace {

double finite(float component)
{
    return std::isfinite(component) ? component : 0;
}

QPixmap swatch(const QColor &color, const QSize &size, const QPaintDevice &device)
{
    QPixmap pixmap(size * device.devicePixelRatioF());
    pixmap.setDevicePixelRatio(device.devicePixelRatioF());
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.setPen(QColor(128, 128, 128));
    painter.drawRect(QRect(QPoint(), size).adjusted(0, 0, -1, -1));
    return pixmap;
}

} // namespace

QKAVOColorManipulator::QKAVOColorManipulator(QWidget *parent, const char *name)
    : QWidget(parent)
{
    setObjectName(QString::fromUtf8(name));
    setFocusPolicy(Qt::WheelFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Color"));
    setToolTip(tr("Click or press Space to choose a color"));
}

void QKAVOColorManipulator::setColor(float red, float green, float blue)
{
    m_color = kavoColorSpace::toHsv({ finite(red), finite(green), finite(blue) });
    if (m_popup)
        m_popup->setColor(m_color);
    update();
}

std::array<float, 4> QKAVOColorManipulator::getColor() const
{
    return { float(m_color.hue), float(m_color.saturation), float(m_color.value), 1 };
}

QString QKAVOColorManipulator::hexCode() const
{
    return kavoColorSpace::toScreen(m_color).name();
}

void QKAVOColorManipulator::initStyleOption(QStyleOptionComboBox *option) const
{
    option->initFrom(this);
    option->subControls = QStyle::SC_All;
    option->currentText = hexCode();
    const int height = fontMetrics().ascent();
    option->iconSize = QSize(2 * height, height);
    option->currentIcon = swatch(kavoColorSpace::toScreen(m_color), option->iconSize, *this);
    if (m_popup && m_popup->isVisible())
        option->state |= QStyle::State_On;
}

QSize QKAVOColorManipulator::sizeHint() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const int gap = style()->pixelMetric(QStyle::PM_ButtonMargin, &option, this);
    const QSize contents(
        option.iconSize.width() + gap + fontMetrics().horizontalAdvance(QStringLiteral("#dddddd")),
        fontMetrics().height());
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this);
}

QSize QKAVOColorManipulator::minimumSizeHint() const
{
    return { fontMetrics().height() * 2, fontMetrics().height() };
}

void QKAVOColorManipulator::paintEvent(QPaintEvent *)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void QKAVOColorManipulator::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        showPopup();
}

void QKAVOColorManipulator::keyPressEvent(QKeyEvent *event)
{
    const bool altDown = event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier;
    if (altDown || event->key() == Qt::Key_Space || event->key() == Qt::Key_F4)
        showPopup();
    else if (event->matches(QKeySequence::Copy))
        QGuiApplication::clipboard()->setText(hexCode());
    else if (event->matches(QKeySequence::Paste))
        paste();
    else
        QWidget::keyPressEvent(event);
}

void QKAVOColorManipulator::paste()
{
    const QColor color(QGuiApplication::clipboard()->text().trimmed());
    if (color.isValid())
        changeColor(kavoColorSpace::toHsv(kavoColorSpace::fromScreen(color), m_color.hue));
}

// The popup is a child of this widget, so that the delegate of an item view sees the focus stay in
// its editor.
void QKAVOColorManipulator::showPopup()
{
    if (!m_popup) {
        m_popup = new kavoColorPopup(this);
        connect(m_popup, &kavoColorPopup::colorChanged, this, &QKAVOColorManipulator::changeColor);
        connect(m_popup, &kavoColorPopup::closed, this, QOverload<>::of(&QWidget::update));
    }
    m_popup->setColor(m_color);
    m_popup->showAt(QRect(mapToGlobal(QPoint()), size()));
    update();
}

void QKAVOColorManipulator::changeColor(const kavoHsvColor &color)
{
    m_color = color;
    update();
    emit colorChanged();
}
