#include "kavoEditorFixture.h"
#include "kavoMetaMethods.h"

#include <kavoCustomPropertyGLenum_p.h>

#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr unsigned int linear = 0x2601;

} // namespace

using Fixture
    = kavoEditorFixture<QtGLenumPropertyManager, QtGLenumEditorFactory, QComboBox, unsigned int>;

class tst_GLenumProperty : public QObject, private Fixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void metaObjectsHoldExactlyTheKnownSignalsAndSlots();
    void aNewPropertyHasAllBitsSetAndNoText();
    void textIsTheNameOrEmpty_data();
    void textIsTheNameOrEmpty();
    void propertiesShowNoIcon();
    void settingTheSameValueSignalsTwice();
    void propertyChangedComesBeforeValueChanged();
    void foreignPropertiesAreIgnored();
    void aDeletedPropertyIsForgotten();
};

void tst_GLenumProperty::init()
{
    setUp();
}

void tst_GLenumProperty::cleanup()
{
    tearDown();
}

void tst_GLenumProperty::metaObjectsHoldExactlyTheKnownSignalsAndSlots()
{
    QCOMPARE(kavoMetaMethods(QtGLenumPropertyManager::staticMetaObject),
        QStringList({ "valueChanged(QtProperty*,uint)", "setValue(QtProperty*,uint)" }));
    QCOMPARE(kavoMetaMethods(QtGLenumEditorFactory::staticMetaObject),
        QStringList({ "slotPropertyChanged(QtProperty*,uint)", "slotSetValue(uint)",
            "slotEditorDestroyed(QObject*)" }));
}

void tst_GLenumProperty::aNewPropertyHasAllBitsSetAndNoText()
{
    QtProperty *property = m_manager->addProperty("minFilter");
    QCOMPARE(m_manager->value(property), 0xFFFFFFFFu);
    QCOMPARE(property->valueText(), QString());
}

void tst_GLenumProperty::textIsTheNameOrEmpty_data()
{
    QTest::addColumn<unsigned int>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0u << "GL_NONE";
    QTest::newRow("one") << 1u << "";
    QTest::newRow("linear") << linear << "GL_LINEAR";
    QTest::newRow("clamp to edge") << 0x812Fu << "";
    QTest::newRow("largest") << 0x80ECu << "GL_FOG_SPECULAR_TEXTURE_WIN";
}

void tst_GLenumProperty::textIsTheNameOrEmpty()
{
    QFETCH(unsigned int, value);
    QTEST(add("any", value)->valueText(), "text");
}

void tst_GLenumProperty::propertiesShowNoIcon()
{
    QVERIFY(add("minFilter", linear)->valueIcon().isNull());
}

void tst_GLenumProperty::settingTheSameValueSignalsTwice()
{
    QtProperty *property = m_manager->addProperty("minFilter");
    QSignalSpy propertyChanged(m_manager.get(), &QtAbstractPropertyManager::propertyChanged);
    QSignalSpy valueChanged(m_manager.get(), &QtGLenumPropertyManager::valueChanged);
    m_manager->setValue(property, linear);
    m_manager->setValue(property, linear);
    QCOMPARE(propertyChanged.count(), 2);
    QCOMPARE(valueChanged.count(), 2);
    QCOMPARE(valueChanged.last().at(1).toUInt(), linear);
}

void tst_GLenumProperty::propertyChangedComesBeforeValueChanged()
{
    QtProperty *property = m_manager->addProperty("minFilter");
    QStringList order;
    connect(m_manager.get(), &QtGLenumPropertyManager::valueChanged, this,
        [&order](QtProperty *changed) { order << "value " + changed->valueText(); });
    connect(m_manager.get(), &QtAbstractPropertyManager::propertyChanged, this,
        [&order](QtProperty *changed) { order << "property " + changed->valueText(); });
    m_manager->setValue(property, linear);
    QCOMPARE(order, QStringList({ "property GL_LINEAR", "value GL_LINEAR" }));
}

void tst_GLenumProperty::foreignPropertiesAreIgnored()
{
    QtGLenumPropertyManager other;
    QtProperty *foreign = other.addProperty("minFilter");
    QSignalSpy valueChanged(m_manager.get(), &QtGLenumPropertyManager::valueChanged);
    m_manager->setValue(foreign, linear);
    QCOMPARE(valueChanged.count(), 0);
    QCOMPARE(m_manager->value(foreign), 0u);
    QCOMPARE(m_manager->value(nullptr), 0u);
    QCOMPARE(other.value(foreign), 0xFFFFFFFFu);
}

void tst_GLenumProperty::aDeletedPropertyIsForgotten()
{
    QtProperty *property = add("minFilter", linear);
    delete property;
    QCOMPARE(m_manager->value(property), 0u);
}

QTEST_MAIN(tst_GLenumProperty)
#include "tst_glenumproperty.moc"
