#include "kavoColorComponents.h"
#include "kavoEditorFixture.h"
#include "kavoMetaMethods.h"

#include <kavoCustomPropertyColor_p.h>

#include <QApplication>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QtTest>

#include <limits>

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();

class IndicatorStyle : public QProxyStyle
{
public:
    explicit IndicatorStyle(const QSize &size)
        : m_size(size)
    {
    }

    int pixelMetric(
        PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        if (metric == PM_IndicatorWidth)
            return m_size.width();
        if (metric == PM_IndicatorHeight)
            return m_size.height();
        return QProxyStyle::pixelMetric(metric, option, widget);
    }

private:
    QSize m_size;
};

QImage swatchOf(const QtProperty &property)
{
    const QIcon icon = property.valueIcon();
    return icon.pixmap(icon.availableSizes().value(0)).toImage();
}

} // namespace

using Fixture = kavoEditorFixture<QtKavoColorPropertyManager, QtKavoColorEditorFactory,
    QKAVOColorManipulator, colorVal>;

class tst_ColorProperty : public QObject, private Fixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void metaObjectsHoldExactlyTheKnownSignalsAndSlots();
    void aNewPropertyIsOpaqueBlack();
    void foreignPropertiesAreZeroAndIgnored();
    void textHasTwoDecimals_data();
    void textHasTwoDecimals();
    void settingTheSameValueSignalsTwice();
    void propertyChangedComesBeforeValueChanged();
    void swatchTruncatesComponentsAndIgnoresAlpha();
    void swatchShowsTheNearestColor_data();
    void swatchShowsTheNearestColor();
    void swatchIsAtLeastAsHighAsWideWithALineLeftAndOnTop_data();
    void swatchIsAtLeastAsHighAsWideWithALineLeftAndOnTop();
    void aWideIndicatorCutsTheSwatchOffAtTheBottom();
};

void tst_ColorProperty::init()
{
    setUp();
    qRegisterMetaType<colorVal>("colorVal");
}

void tst_ColorProperty::cleanup()
{
    tearDown();
    QApplication::setStyle("fusion");
}

void tst_ColorProperty::metaObjectsHoldExactlyTheKnownSignalsAndSlots()
{
    QCOMPARE(kavoMetaMethods(QtKavoColorPropertyManager::staticMetaObject),
        QStringList({ "valueChanged(QtProperty*,colorVal)", "setValue(QtProperty*,colorVal)" }));
    QCOMPARE(kavoMetaMethods(QtKavoColorEditorFactory::staticMetaObject),
        QStringList({ "slotPropertyChanged(QtProperty*,colorVal)", "slotSetValue()",
            "slotEditorDestroyed(QObject*)" }));
}

void tst_ColorProperty::aNewPropertyIsOpaqueBlack()
{
    QtProperty *property = m_manager->addProperty("diffuse");
    QCOMPARE(components(m_manager->value(property)), QVector<float>({ 0, 0, 0, 1 }));
    QCOMPARE(property->valueText(), QStringLiteral("0.00 0.00 0.00 1.00"));
}

void tst_ColorProperty::foreignPropertiesAreZeroAndIgnored()
{
    struct Manager : QtKavoColorPropertyManager
    {
        using QtKavoColorPropertyManager::valueIcon;
        using QtKavoColorPropertyManager::valueText;
    } manager;
    QtProperty *foreign = add("diffuse", { 1, 1, 1, 1 });
    QSignalSpy valueChanged(&manager, &QtKavoColorPropertyManager::valueChanged);
    manager.setValue(foreign, { 1, 0, 0, 1 });
    QCOMPARE(valueChanged.count(), 0);
    QCOMPARE(components(manager.value(foreign)), QVector<float>({ 0, 0, 0, 0 }));
    QCOMPARE(manager.valueText(foreign), QString());
    QVERIFY(manager.valueIcon(foreign).isNull());
}

void tst_ColorProperty::textHasTwoDecimals_data()
{
    QTest::addColumn<colorVal>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("orange") << colorVal { 1, 0.5f, 0, 1 } << "1.00 0.50 0.00 1.00";
    QTest::newRow("out of range") << colorVal { 1.5f, -0.2f, 0, 1 } << "1.50 -0.20 0.00 1.00";
    QTest::newRow("rounded") << colorVal { 0.126f, 0.999f, 0.001f, 0.5f } << "0.13 1.00 0.00 0.50";
}

void tst_ColorProperty::textHasTwoDecimals()
{
    QFETCH(colorVal, value);
    QtProperty *property = add("diffuse", value);
    QTEST(property->valueText(), "text");
    QCOMPARE(components(m_manager->value(property)), components(value));
}

void tst_ColorProperty::settingTheSameValueSignalsTwice()
{
    QtProperty *property = m_manager->addProperty("diffuse");
    QSignalSpy propertyChanged(m_manager.get(), &QtAbstractPropertyManager::propertyChanged);
    QSignalSpy valueChanged(m_manager.get(), &QtKavoColorPropertyManager::valueChanged);
    m_manager->setValue(property, { 1, 0, 0, 1 });
    m_manager->setValue(property, { 1, 0, 0, 1 });
    QCOMPARE(propertyChanged.count(), 2);
    QCOMPARE(valueChanged.count(), 2);
}

void tst_ColorProperty::propertyChangedComesBeforeValueChanged()
{
    QtProperty *property = m_manager->addProperty("diffuse");
    QStringList order;
    connect(m_manager.get(), &QtKavoColorPropertyManager::valueChanged, this,
        [&order](QtProperty *changed) { order << "value " + changed->valueText(); });
    connect(m_manager.get(), &QtAbstractPropertyManager::propertyChanged, this,
        [&order](QtProperty *changed) { order << "property " + changed->valueText(); });
    m_manager->setValue(property, { 1, 0, 0, 1 });
    QCOMPARE(order, QStringList({ "property 1.00 0.00 0.00 1.00", "value 1.00 0.00 0.00 1.00" }));
}

void tst_ColorProperty::swatchTruncatesComponentsAndIgnoresAlpha()
{
    const QImage swatch = swatchOf(*add("diffuse", { 0.999f, 0.5f, 0.1f, 0 }));
    QCOMPARE(swatch.pixelColor(swatch.rect().center()), QColor(254, 127, 25));
}

void tst_ColorProperty::swatchShowsTheNearestColor_data()
{
    QTest::addColumn<colorVal>("value");
    QTest::addColumn<QColor>("color");
    QTest::newRow("too bright and too dark") << colorVal { 1.5f, -0.2f, 0, 1 } << QColor(255, 0, 0);
    QTest::newRow("infinite") << colorVal { infinity, -infinity, 1, 1 } << QColor(255, 0, 255);
    QTest::newRow("no number") << colorVal { notANumber, 1, notANumber, notANumber }
                               << QColor(0, 255, 0);
}

void tst_ColorProperty::swatchShowsTheNearestColor()
{
    QFETCH(colorVal, value);
    const QImage swatch = swatchOf(*add("diffuse", value));
    QTEST(swatch.pixelColor(swatch.rect().center()), "color");
}

void tst_ColorProperty::swatchIsAtLeastAsHighAsWideWithALineLeftAndOnTop_data()
{
    QTest::addColumn<QSize>("indicator");
    QTest::addColumn<QSize>("swatch");
    QTest::newRow("square") << QSize(14, 14) << QSize(14, 14);
    QTest::newRow("high") << QSize(10, 16) << QSize(10, 16);
    QTest::newRow("wide") << QSize(16, 10) << QSize(16, 16);
}

void tst_ColorProperty::swatchIsAtLeastAsHighAsWideWithALineLeftAndOnTop()
{
    QFETCH(QSize, indicator);
    QApplication::setStyle(new IndicatorStyle(indicator));
    const QImage swatch = swatchOf(*add("diffuse", { 1, 0, 0, 1 }));
    QTEST(swatch.size(), "swatch");
    QCOMPARE(swatch.pixelColor(0, swatch.height() / 2), QColor(Qt::black));
    QCOMPARE(swatch.pixelColor(swatch.width() - 1, swatch.height() / 2), QColor(Qt::red));
}

void tst_ColorProperty::aWideIndicatorCutsTheSwatchOffAtTheBottom()
{
    QApplication::setStyle(new IndicatorStyle(QSize(20, 13)));
    const QImage swatch = swatchOf(*add("diffuse", { 1, 0, 0, 1 }));
    QCOMPARE(swatch.pixelColor(10, 2).alpha(), 0);
    QCOMPARE(swatch.pixelColor(10, 3), QColor(Qt::black));
    QCOMPARE(swatch.pixelColor(10, 4), QColor(Qt::red));
    QCOMPARE(swatch.pixelColor(10, 19), QColor(Qt::red));
}

QTEST_MAIN(tst_ColorProperty)
#include "tst_colorproperty.moc"
