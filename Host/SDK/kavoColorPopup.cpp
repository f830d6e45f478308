#include "kavoColorPopup.h"

#include "kavoRecentColors.h"
#include "kavoScreenColorPicker.h"

#include <kavoIconManager.h>

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QToolButton>
#include <QtColorWidgets/ColorPreview>
#include <QtColorWidgets/ColorWheel>
#include <QtColorWidgets/color_line_edit.hpp>
#include <QtColorWidgets/swatch.hpp>

#include <algorithm>
#include <tuple>

namespace {

constexpr kavoColorChannel::Part parts[] = {
    { QT_TRANSLATE_NOOP("kavoColorChannel", "Hue"), &kavoHsvColor::hue, nullptr, 360, 1, 1, "°" },
    { QT_TRANSLATE_NOOP("kavoColorChannel", "Saturation"), &kavoHsvColor::saturation, nullptr, 1, 3,
        0.01, "" },
    { QT_TRANSLATE_NOOP("kavoColorChannel", "Value"), &kavoHsvColor::value, nullptr, 1, 3, 0.01,
        "" },
    { QT_TRANSLATE_NOOP("kavoColorChannel", "Red"), nullptr, &kavoRgbColor::red, 1, 3, 0.01, "" },
    { QT_TRANSLATE_NOOP("kavoColorChannel", "Green"), nullptr, &kavoRgbColor::green, 1, 3, 0.01,
        "" },
    { QT_TRANSLATE_NOOP("kavoColorChannel", "Blue"), nullptr, &kavoRgbColor::blue, 1, 3, 0.01, "" },
};
constexpr int partsPerSpace = 3;
constexpr int wheelSize = 200;
constexpr int sliderWidth = 160;
constexpr int swatchSize = 20;

bool operator!=(const kavoHsvColor &a, const kavoHsvColor &b)
{
    return std::tie(a.hue, a.saturation, a.value) != std::tie(b.hue, b.saturation, b.value);
}

} // namespace

kavoColorPopup::kavoColorPopup(QWidget *parent)
    : QFrame(parent, Qt::Popup)
{
    setObjectName(QStringLiteral("colorPopup"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    // The click that closes the popup must not press the widget below, which would open it again.
    setAttribute(Qt::WA_NoMouseReplay);
    setAccessibleName(tr("Color picker"));

    auto *columns = new QHBoxLayout;
    columns->addLayout(createLeftColumn());
    columns->addLayout(createForm());
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(columns);
    rows->addLayout(createRecentColors());
    rows->setSizeConstraint(QLayout::SetFixedSize);
}

// Contains the wheel and, below it, the old and the new colour.
QLayout *kavoColorPopup::createLeftColumn()
{
    m_wheel = new color_widgets::ColorWheel(this);
    m_wheel->setObjectName(QStringLiteral("wheel"));
    m_wheel->setFixedSize(wheelSize, wheelSize);
    connect(m_wheel, &color_widgets::ColorWheel::colorSelected, this, [this] {
        change({ m_wheel->hue() * 360, m_wheel->saturation(), m_wheel->value() }, m_wheel);
    });
    auto *column = new QVBoxLayout;
    column->addWidget(m_wheel);
    column->addLayout(createComparison());
    return column;
}

QLayout *kavoColorPopup::createComparison()
{
    m_old = createPreview(QStringLiteral("oldColor"), tr("Old color: click to take it back"));
    m_new = createPreview(QStringLiteral("newColor"), tr("New color"));
    connect(
        m_old, &color_widgets::ColorPreview::clicked, this, [this] { change(m_oldColor, m_old); });
    auto *grid = new QGridLayout;
    grid->setSpacing(0);
    grid->addWidget(m_old, 0, 0);
    grid->addWidget(m_new, 0, 1);
    grid->addWidget(new QLabel(tr("Old"), this), 1, 0, Qt::AlignHCenter);
    grid->addWidget(new QLabel(tr("New"), this), 1, 1, Qt::AlignHCenter);
    return grid;
}

color_widgets::ColorPreview *kavoColorPopup::createPreview(
    const QString &name, const QString &toolTip)
{
    auto *preview = new color_widgets::ColorPreview(this);
    preview->setObjectName(name);
    preview->setToolTip(toolTip);
    preview->setAccessibleName(toolTip);
    preview->setFixedHeight(fontMetrics().height() * 2);
    return preview;
}

// Contains the hex entry and a row for each channel.
QLayout *kavoColorPopup::createForm()
{
    auto *grid = new QGridLayout;
    createHexEntry();
    auto *label = new QLabel(tr("He&x"), this);
    label->setBuddy(m_hex);
    grid->addWidget(label, 0, 0);
    grid->addWidget(m_hex, 0, 1);
    grid->addWidget(createEyedropper(), 0, 2);
    grid->setColumnMinimumWidth(1, sliderWidth);
    for (const kavoColorChannel::Part &part : parts) {
        if (&part == parts || &part == parts + partsPerSpace)
            grid->setRowMinimumHeight(grid->rowCount(), fontMetrics().height() / 2);
        createChannel(part, grid);
    }
    return grid;
}

void kavoColorPopup::createHexEntry()
{
    m_hex = new color_widgets::ColorLineEdit(this);
    m_hex->setObjectName(QStringLiteral("hex"));
    m_hex->setShowAlpha(false);
    m_hex->setToolTip(tr("Hexadecimal code or name"));
    connect(m_hex, &color_widgets::ColorLineEdit::colorEdited, this, [this](const QColor &color) {
        change(kavoColorSpace::toHsv(kavoColorSpace::fromScreen(color), m_color.hue), m_hex);
    });
    connect(m_hex, &QLineEdit::editingFinished, this, [this] { refresh(nullptr); });
}

QWidget *kavoColorPopup::createEyedropper()
{
    auto *button = new QToolButton(this);
    button->setObjectName(QStringLiteral("eyedropper"));
    button->setIcon(kavoIconManager::getIcon("Eyedropper"));
    button->setToolTip(tr("Pick a color from the screen"));
    button->setAccessibleName(button->toolTip());
    button->setFocusPolicy(Qt::StrongFocus);
    button->setEnabled(kavoScreenColorPicker::isAvailable());
    connect(button, &QToolButton::clicked, this, &kavoColorPopup::pickFromScreen);
    return button;
}

void kavoColorPopup::createChannel(const kavoColorChannel::Part &part, QGridLayout *grid)
{
    auto *channel = new kavoColorChannel(part, grid, this);
    connect(channel, &kavoColorChannel::edited, this,
        [this, channel](const kavoHsvColor &color) { change(color, channel); });
    m_channels.push_back(channel);
}

QLayout *kavoColorPopup::createRecentColors()
{
    m_recentLabel = new QLabel(tr("Recent"), this);
    m_recent = new color_widgets::Swatch(this);
    m_recent->setObjectName(QStringLiteral("recentColors"));
    m_recent->setReadOnly(true);
    m_recent->setForcedRows(1);
    m_recent->setColorSize(QSize(swatchSize, swatchSize));
    m_recent->setColorSizePolicy(color_widgets::Swatch::Fixed);
    m_recent->setToolTip(tr("Recent colors"));
    m_recent->setAccessibleName(tr("Recent colors"));
    connect(m_recent, &color_widgets::Swatch::colorSelected, this, [this](const QColor &color) {
        change(kavoColorSpace::toHsv(kavoColorSpace::fromScreen(color), m_color.hue), m_recent);
    });
    auto *row = new QHBoxLayout;
    row->addWidget(m_recentLabel);
    row->addWidget(m_recent);
    row->addStretch();
    return row;
}

void kavoColorPopup::showRecentColors()
{
    const QSignalBlocker blocker(m_recent);
    const QVector<QColor> colors = kavoRecentColors::load();
    m_recent->setPalette(color_widgets::ColorPalette(colors));
    m_recent->clearSelection();
    m_recent->setVisible(!colors.isEmpty());
    m_recentLabel->setVisible(!colors.isEmpty());
}

void kavoColorPopup::setColor(const kavoHsvColor &color)
{
    m_color = color;
    m_oldColor = color;
    m_old->setColor(kavoColorSpace::toScreen(color));
    refresh(nullptr);
}

void kavoColorPopup::showAt(const QRect &anchor)
{
    showRecentColors();
    adjustSize();
    const QRect available = screen()->availableGeometry();
    QRect rect(anchor.bottomLeft() + QPoint(0, 1), size());
    if (rect.bottom() > available.bottom())
        rect.moveBottom(anchor.top() - 1);
    rect.moveTop(std::max(rect.top(), available.top()));
    rect.moveRight(std::min(rect.right(), available.right()));
    rect.moveLeft(std::max(rect.left(), available.left()));
    move(rect.topLeft());
    show();
    m_hex->setFocus(Qt::PopupFocusReason);
    m_hex->selectAll();
}

void kavoColorPopup::change(const kavoHsvColor &color, const QObject *source)
{
    m_color = color;
    refresh(source);
    emit colorChanged(color);
}

// Skips the control that the change comes from.
void kavoColorPopup::refresh(const QObject *source)
{
    const QColor shown = kavoColorSpace::toScreen(m_color);
    m_new->setColor(shown);
    if (source != m_hex) {
        const QSignalBlocker blocker(m_hex);
        m_hex->setColor(shown);
    }
    if (source != m_wheel) {
        m_wheel->setHue(m_color.hue / 360);
        m_wheel->setSaturation(m_color.saturation);
        m_wheel->setValue(m_color.value);
    }
    for (kavoColorChannel *channel : m_channels)
        channel->show(m_color, channel == source);
}

void kavoColorPopup::pickFromScreen()
{
    auto *picker = new kavoScreenColorPicker(this);
    connect(picker, &kavoScreenColorPicker::picked, this, [this, picker](const QColor &color) {
        change(kavoColorSpace::toHsv(kavoColorSpace::fromScreen(color), m_color.hue), picker);
    });
    picker->start();
}

void kavoColorPopup::keyPressEvent(QKeyEvent *event)
{
    const bool altUp = event->key() == Qt::Key_Up && event->modifiers() & Qt::AltModifier;
    if (event->key() == Qt::Key_Escape)
        cancel();
    else if (altUp
        || QList<int> { Qt::Key_Return, Qt::Key_Enter, Qt::Key_F4 }.contains(event->key()))
        close();
    else
        QFrame::keyPressEvent(event);
}

void kavoColorPopup::cancel()
{
    if (m_color != m_oldColor)
        change(m_oldColor, nullptr);
    close();
}

void kavoColorPopup::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    if (m_color != m_oldColor)
        kavoRecentColors::add(kavoColorSpace::toScreen(m_color));
    emit closed();
}
