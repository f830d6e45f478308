#include <kavoCustomPropertyColor_p.h>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QtTest>

#include <limits>

Q_DECLARE_METATYPE(QtProperty *)
Q_DECLARE_METATYPE(colorVal)

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();

struct Factory : QtKavoColorEditorFactory
{
    using QtKavoColorEditorFactory::createEditor;
};

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

QStringList ownMethods(const QMetaObject &metaObject)
{
    QStringList methods;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i)
        methods << metaObject.method(i).methodSignature();
    return methods;
}

// A copy of the value, so that the difference that fails is printed.
QVector<float> components(const colorVal &color)
{
    return { color.r, color.g, color.b, color.a };
}

}

class tst_ColorProperty : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
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
    void thePickerStartsWithTheColorOfTheProperty();
    void thePickerOfAForeignPropertyIsBlack();
    void pickedHsvBecomesRgb_data();
    void pickedHsvBecomesRgb();
    void aGreyHasEqualComponents();
    void pickingSetsTheColorAndAlphaToOne();
    void theColorSurvivesThePickerUnrounded();
    void aChangeFromElsewhereLeavesTheOpenPicker();
    void theSlotIgnoresForeignSenders();
    void removingTheManagerLeavesItsConnection();
    void aDestroyedEditorIsForgotten();
    void theFactoryDeletesItsOpenEditors();
    void anEditorOutlivesItsManager();

private:
    QtProperty *add(const colorVal &value);
    QKAVOColorManipulator *edit(QtProperty *property);

    QtKavoColorPropertyManager *m_manager = nullptr;
    Factory *m_factory = nullptr;
    QWidget *m_parent = nullptr;
};

void tst_ColorProperty::initTestCase()
{
    qRegisterMetaType<QtProperty *>("QtProperty*");
    qRegisterMetaType<colorVal>("colorVal");
}

void tst_ColorProperty::init()
{
    m_parent = new QWidget;
    m_manager = new QtKavoColorPropertyManager;
    m_factory = new Factory;
    m_factory->addPropertyManager(m_manager);
}

void tst_ColorProperty::cleanup()
{
    delete m_factory;
    delete m_manager;
    delete m_parent;
    QApplication::setStyle("fusion");
}

QtProperty *tst_ColorProperty::add(const colorVal &value)
{
    QtProperty *property = m_manager->addProperty("diffuse");
    m_manager->setValue(property, value);
    return property;
}

QKAVOColorManipulator *tst_ColorProperty::edit(QtProperty *property)
{
    return qobject_cast<QKAVOColorManipulator *>(
        m_factory->createEditor(m_manager, property, m_parent));
}

void tst_ColorProperty::metaObjectsHoldExactlyTheKnownSignalsAndSlots()
{
    QCOMPARE(ownMethods(QtKavoColorPropertyManager::staticMetaObject),
        QStringList({ "valueChanged(QtProperty*,colorVal)", "setValue(QtProperty*,colorVal)" }));
    QCOMPARE(ownMethods(QtKavoColorEditorFactory::staticMetaObject),
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
    QtProperty *foreign = add({ 1, 1, 1, 1 });
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
    QtProperty *property = add(value);
    QTEST(property->valueText(), "text");
    QCOMPARE(components(m_manager->value(property)), components(value));
}

void tst_ColorProperty::settingTheSameValueSignalsTwice()
{
    QtProperty *property = m_manager->addProperty("diffuse");
    QSignalSpy propertyChanged(m_manager, &QtAbstractPropertyManager::propertyChanged);
    QSignalSpy valueChanged(m_manager, &QtKavoColorPropertyManager::valueChanged);
    m_manager->setValue(property, { 1, 0, 0, 1 });
    m_manager->setValue(property, { 1, 0, 0, 1 });
    QCOMPARE(propertyChanged.count(), 2);
    QCOMPARE(valueChanged.count(), 2);
}

void tst_ColorProperty::propertyChangedComesBeforeValueChanged()
{
    QtProperty *property = m_manager->addProperty("diffuse");
    QStringList order;
    connect(m_manager, &QtKavoColorPropertyManager::valueChanged, this,
        [&order](QtProperty *changed) { order << "value " + changed->valueText(); });
    connect(m_manager, &QtAbstractPropertyManager::propertyChanged, this,
        [&order](QtProperty *changed) { order << "property " + changed->valueText(); });
    m_manager->setValue(property, { 1, 0, 0, 1 });
    QCOMPARE(order, QStringList({ "property 1.00 0.00 0.00 1.00", "value 1.00 0.00 0.00 1.00" }));
}

void tst_ColorProperty::swatchTruncatesComponentsAndIgnoresAlpha()
{
    const QImage swatch = swatchOf(*add({ 0.999f, 0.5f, 0.1f, 0 }));
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
    const QImage swatch = swatchOf(*add(value));
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
    const QImage swatch = swatchOf(*add({ 1, 0, 0, 1 }));
    QTEST(swatch.size(), "swatch");
    QCOMPARE(swatch.pixelColor(0, swatch.height() / 2), QColor(Qt::black));
    QCOMPARE(swatch.pixelColor(swatch.width() - 1, swatch.height() / 2), QColor(Qt::red));
}

void tst_ColorProperty::aWideIndicatorCutsTheSwatchOffAtTheBottom()
{
    QApplication::setStyle(new IndicatorStyle(QSize(20, 13)));
    const QImage swatch = swatchOf(*add({ 1, 0, 0, 1 }));
    QCOMPARE(swatch.pixelColor(10, 2).alpha(), 0);
    QCOMPARE(swatch.pixelColor(10, 3), QColor(Qt::black));
    QCOMPARE(swatch.pixelColor(10, 4), QColor(Qt::red));
    QCOMPARE(swatch.pixelColor(10, 19), QColor(Qt::red));
}

void tst_ColorProperty::thePickerStartsWithTheColorOfTheProperty()
{
    const QKAVOColorManipulator *editor = edit(add({ 0, 0.5f, 0, 0.25f }));
    QCOMPARE(editor->parentWidget(), m_parent);
    QCOMPARE(editor->objectName(), QString());
    const auto hsv = editor->getColor();
    QCOMPARE(QVector<float>({ hsv[0], hsv[1], hsv[2] }), QVector<float>({ 120, 1, 0.5f }));
}

void tst_ColorProperty::thePickerOfAForeignPropertyIsBlack()
{
    QtKavoColorPropertyManager other;
    QtProperty *foreign = other.addProperty("diffuse");
    other.setValue(foreign, { 1, 1, 1, 1 });
    QScopedPointer<QKAVOColorManipulator> editor(edit(foreign));
    QCOMPARE(editor->getColor()[2], 0.0f);
}

void tst_ColorProperty::pickedHsvBecomesRgb_data()
{
    QTest::addColumn<double>("hue");
    QTest::addColumn<colorVal>("rgb");
    QTest::newRow("red") << 0.0 << colorVal { 1, 0, 0, 1 };
    QTest::newRow("sector 0") << 30.0 << colorVal { 1, 0.5f, 0, 1 };
    QTest::newRow("sector 1") << 90.0 << colorVal { 0.5f, 1, 0, 1 };
    QTest::newRow("sector 2, green") << 120.0 << colorVal { 0, 1, 0, 1 };
    QTest::newRow("sector 2") << 150.0 << colorVal { 0, 1, 0.5f, 1 };
    QTest::newRow("sector 3") << 210.0 << colorVal { 0, 0.5f, 1, 1 };
    QTest::newRow("sector 4") << 270.0 << colorVal { 0.5f, 0, 1, 1 };
    QTest::newRow("sector 5") << 330.0 << colorVal { 1, 0, 0.5f, 1 };
    QTest::newRow("360 is not wrapped") << 360.0 << colorVal { 1, 0, 6 - 5.999833f, 1 };
    QTest::newRow("beyond 360 as well") << 400.0 << colorVal { 1, 0, 6 - 5.999833f, 1 };
    QTest::newRow("negative is 0") << -30.0 << colorVal { 1, 0, 0, 1 };
}

void tst_ColorProperty::pickedHsvBecomesRgb()
{
    QFETCH(double, hue);
    QFETCH(colorVal, rgb);
    QCOMPARE(
        components(QtKavoColorEditorFactoryPrivate::fromHsv(float(hue), 1, 1)), components(rgb));
}

void tst_ColorProperty::aGreyHasEqualComponents()
{
    QCOMPARE(components(QtKavoColorEditorFactoryPrivate::fromHsv(0, 0, 0.5f)),
        QVector<float>({ 0.5f, 0.5f, 0.5f, 1 }));
}

void tst_ColorProperty::pickingSetsTheColorAndAlphaToOne()
{
    QtProperty *property = add({ 0, 0.5f, 0, 0.25f });
    QKAVOColorManipulator *editor = edit(property);
    QTest::keyClick(editor, Qt::Key_Space);
    editor->findChild<QDoubleSpinBox *>("HueField")->setValue(360);
    QCOMPARE(components(m_manager->value(property)),
        QVector<float>({ 0.5f, 0, 0.5f * (6 - 5.999833f), 1 }));
}

void tst_ColorProperty::theColorSurvivesThePickerUnrounded()
{
    QtProperty *property = add({ 0.123456f, 0.654321f, 0.333333f, 1 });
    emit edit(property)->colorChanged();
    const colorVal value = m_manager->value(property);
    QVERIFY(std::abs(value.r - 0.123456f) < 1e-6f);
    QVERIFY(std::abs(value.g - 0.654321f) < 1e-6f);
    QVERIFY(std::abs(value.b - 0.333333f) < 1e-6f);
}

void tst_ColorProperty::aChangeFromElsewhereLeavesTheOpenPicker()
{
    QtProperty *property = add({ 0, 1, 0, 1 });
    const QKAVOColorManipulator *editor = edit(property);
    m_manager->setValue(property, { 1, 0, 0, 1 });
    QCOMPARE(editor->getColor()[0], 120.0f);
}

void tst_ColorProperty::theSlotIgnoresForeignSenders()
{
    edit(add({ 0, 1, 0, 1 }));
    QKAVOColorManipulator stranger(nullptr, nullptr);
    connect(&stranger, SIGNAL(colorChanged()), m_factory, SLOT(slotSetValue()));
    QSignalSpy valueChanged(m_manager, &QtKavoColorPropertyManager::valueChanged);
    emit stranger.colorChanged();
    QVERIFY(QMetaObject::invokeMethod(m_factory, "slotSetValue"));
    QCOMPARE(valueChanged.count(), 0);
}

void tst_ColorProperty::removingTheManagerLeavesItsConnection()
{
    QtProperty *property = add({ 0, 1, 0, 1 });
    QKAVOColorManipulator *editor = edit(property);
    QTest::ignoreMessage(QtWarningMsg,
        "QObject::disconnect: No such signal "
        "QtKavoColorPropertyManager::valueChanged(QtProperty *property, colorVal)");
    m_factory->removePropertyManager(m_manager);
    QVERIFY(disconnect(m_manager, SIGNAL(valueChanged(QtProperty *, colorVal)), m_factory,
        SLOT(slotPropertyChanged(QtProperty *, colorVal))));
    emit editor->colorChanged();
    QCOMPARE(components(m_manager->value(property)), QVector<float>({ 0, 1, 0, 1 }));
}

void tst_ColorProperty::aDestroyedEditorIsForgotten()
{
    QtProperty *property = add({ 0, 1, 0, 1 });
    delete edit(property);
    QKAVOColorManipulator *editor = edit(property);
    emit editor->colorChanged();
    QCOMPARE(components(m_manager->value(property)), QVector<float>({ 0, 1, 0, 1 }));
}

void tst_ColorProperty::theFactoryDeletesItsOpenEditors()
{
    const QPointer<QKAVOColorManipulator> editor = edit(add({ 0, 1, 0, 1 }));
    delete m_factory;
    m_factory = nullptr;
    QVERIFY(!editor);
}

void tst_ColorProperty::anEditorOutlivesItsManager()
{
    QKAVOColorManipulator *editor = edit(add({ 0, 1, 0, 1 }));
    delete m_manager;
    m_manager = nullptr;
    emit editor->colorChanged();
    QCOMPARE(editor->getColor()[0], 120.0f);
}

QTEST_MAIN(tst_ColorProperty)
#include "tst_colorproperty.moc"
