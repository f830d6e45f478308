#include "kavoCustomPropertyColor.h"

#include "kavoCustomPropertyColor_p.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>
#include <cmath>

namespace {

// Truncates to 0 to 255, because QColor rejects other components.
int swatchComponent(float component)
{
    return std::isnan(component) ? 0 : int(std::clamp(component, 0.0f, 1.0f) * 255);
}

QPixmap swatch(const colorVal &color)
{
    QStyleOptionButton option;
    option.state = QStyle::State_Enabled | QStyle::State_On;
    const QStyle *style = QApplication::style();
    const int w = style->pixelMetric(QStyle::PM_IndicatorWidth, &option);
    const int h = style->pixelMetric(QStyle::PM_IndicatorHeight, &option);
    option.rect = QRect(0, 0, w, h);
    const int height = std::max(w, h);

    QPixmap pixmap(w, height);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    // Deliberate: the rectangle keeps its full height, so a wide indicator cuts off its bottom.
    painter.translate(0, h < w ? (w - h) / 2 : 0);
    painter.setBrush(
        QColor(swatchComponent(color.r), swatchComponent(color.g), swatchComponent(color.b), 255));
    const QRect rect(QPoint(0, 0), QPoint(w - 1, height - 1));
    painter.drawRects(&rect, 1);
    return pixmap;
}

// Deliberate: a hue of 360 or more stays just below the end of the last sector and does not wrap to
// 0.
float sectorPosition(float hue)
{
    return std::max(0.0f, hue >= 360 ? 5.999833f : hue / 60);
}

} // namespace

// QtKavoColorPropertyManager

QtKavoColorPropertyManager::QtKavoColorPropertyManager(QObject *parent)
    : QtAbstractPropertyManager(parent)
    , d_ptr(new QtKavoColorPropertyManagerPrivate)
{
    d_ptr->q_ptr = this;
}

QtKavoColorPropertyManager::~QtKavoColorPropertyManager()
{
    qDeleteAll(properties()); // clear() would copy the set for every row
    delete d_ptr;
}

colorVal QtKavoColorPropertyManager::value(const QtProperty *property) const
{
    const auto it = d_ptr->m_values.find(property);
    return it == d_ptr->m_values.end() ? colorVal { 0, 0, 0, 0 } : it->second.val;
}

void QtKavoColorPropertyManager::setValue(QtProperty *property, colorVal value)
{
    const auto it = d_ptr->m_values.find(property);
    if (it == d_ptr->m_values.end())
        return;
    // Deliberate: setting the same value signals again, because the field behind the property may
    // have changed.
    it->second.val = value;
    emit propertyChanged(property);
    emit valueChanged(property, value);
}

QIcon QtKavoColorPropertyManager::valueIcon(const QtProperty *property) const
{
    const auto it = d_ptr->m_values.find(property);
    return it == d_ptr->m_values.end() ? QIcon() : QIcon(swatch(it->second.val));
}

QString QtKavoColorPropertyManager::valueText(const QtProperty *property) const
{
    const auto it = d_ptr->m_values.find(property);
    if (it == d_ptr->m_values.end())
        return {};
    const auto number = [](float x) { return QString::number(x, 'f', 2); };
    const colorVal &val = it->second.val;
    return QStringLiteral("%1 %2 %3 %4")
        .arg(number(val.r), number(val.g), number(val.b), number(val.a));
}

void QtKavoColorPropertyManager::initializeProperty(QtProperty *property)
{
    d_ptr->m_values[property] = {};
}

void QtKavoColorPropertyManager::uninitializeProperty(QtProperty *property)
{
    d_ptr->m_values.erase(property);
}

// QtKavoColorEditorFactoryPrivate

// Deliberate: a change made elsewhere does not move an open picker.
void QtKavoColorEditorFactoryPrivate::slotPropertyChanged(QtProperty *, colorVal)
{
}

void QtKavoColorEditorFactoryPrivate::slotSetValue()
{
    auto *editor = dynamic_cast<QKAVOColorManipulator *>(q_ptr->sender());
    QtProperty *property = m_editorToProperty.value(editor);
    if (!property)
        return;
    if (QtKavoColorPropertyManager *manager = q_ptr->propertyManager(property)) {
        const auto [hue, saturation, value, unused] = editor->getColor();
        Q_UNUSED(unused)
        manager->setValue(property, fromHsv(hue, saturation, value));
    }
}

colorVal QtKavoColorEditorFactoryPrivate::fromHsv(float hue, float saturation, float value)
{
    const float x = sectorPosition(hue);
    const int i = int(x);
    const float f = x - i;
    const float p = value * (1 - saturation);
    const float q = value * (1 - saturation * f);
    const float t = value * (1 - saturation * (1 - f));
    switch (i) {
    case 1:
        return { q, value, p, 1 };
    case 2:
        return { p, value, t, 1 };
    case 3:
        return { p, q, value, 1 };
    case 4:
        return { t, p, value, 1 };
    case 5:
        return { value, p, q, 1 };
    default:
        return { value, t, p, 1 };
    }
}

// QtKavoColorEditorFactory

QtKavoColorEditorFactory::QtKavoColorEditorFactory(QObject *parent)
    : QtAbstractEditorFactory<QtKavoColorPropertyManager>(parent)
    , d_ptr(new QtKavoColorEditorFactoryPrivate)
{
    d_ptr->q_ptr = this;
}

QtKavoColorEditorFactory::~QtKavoColorEditorFactory()
{
    qDeleteAll(d_ptr->m_editorToProperty.keys());
    delete d_ptr;
}

void QtKavoColorEditorFactory::connectPropertyManager(QtKavoColorPropertyManager *manager)
{
    connect(manager, SIGNAL(valueChanged(QtProperty *, colorVal)), this,
        SLOT(slotPropertyChanged(QtProperty *, colorVal)));
}

QWidget *QtKavoColorEditorFactory::createEditor(
    QtKavoColorPropertyManager *manager, QtProperty *property, QWidget *parent)
{
    auto *editor = new QKAVOColorManipulator(parent, nullptr);
    d_ptr->initializeEditor(property, editor);
    const colorVal value = manager->value(property);
    editor->setColor(value.r, value.g, value.b);
    connect(editor, SIGNAL(colorChanged()), this, SLOT(slotSetValue()));
    connect(editor, SIGNAL(destroyed(QObject *)), this, SLOT(slotEditorDestroyed(QObject *)));
    return editor;
}

// Deliberate: Qt does not accept parameter names in signatures, so it warns and disconnects
// nothing. The connection stays until one side is destroyed. It does no harm, because the slot is
// empty.
void QtKavoColorEditorFactory::disconnectPropertyManager(QtKavoColorPropertyManager *manager)
{
    disconnect(manager, "2valueChanged(QtProperty *property, colorVal)", this,
        "1slotPropertyChanged(QtProperty *property, colorVal)");
}

#include "moc_kavoCustomPropertyColor.cpp"
