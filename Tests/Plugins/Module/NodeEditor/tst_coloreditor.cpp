#include "kavoColorComponents.h"
#include "kavoEditorFixture.h"

#include <kavoCustomPropertyColor_p.h>

#include <QDoubleSpinBox>
#include <QSignalSpy>
#include <QtTest>

using Fixture = kavoEditorFixture<QtKavoColorPropertyManager, QtKavoColorEditorFactory,
    QKAVOColorManipulator, colorVal>;

class tst_ColorEditor : public QObject, private Fixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
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
};

void tst_ColorEditor::init()
{
    setUp();
    qRegisterMetaType<colorVal>("colorVal");
}

void tst_ColorEditor::cleanup()
{
    tearDown();
}

void tst_ColorEditor::thePickerStartsWithTheColorOfTheProperty()
{
    const QKAVOColorManipulator *editor = edit(add("diffuse", { 0, 0.5f, 0, 0.25f }));
    QCOMPARE(editor->parentWidget(), m_parent.get());
    QCOMPARE(editor->objectName(), QString());
    const auto hsv = editor->getColor();
    QCOMPARE(QVector<float>({ hsv[0], hsv[1], hsv[2] }), QVector<float>({ 120, 1, 0.5f }));
}

void tst_ColorEditor::thePickerOfAForeignPropertyIsBlack()
{
    QtKavoColorPropertyManager other;
    QtProperty *foreign = other.addProperty("diffuse");
    other.setValue(foreign, { 1, 1, 1, 1 });
    QScopedPointer<QKAVOColorManipulator> editor(edit(foreign));
    QCOMPARE(editor->getColor()[2], 0.0f);
}

void tst_ColorEditor::pickedHsvBecomesRgb_data()
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

void tst_ColorEditor::pickedHsvBecomesRgb()
{
    QFETCH(double, hue);
    QFETCH(colorVal, rgb);
    QCOMPARE(
        components(QtKavoColorEditorFactoryPrivate::fromHsv(float(hue), 1, 1)), components(rgb));
}

void tst_ColorEditor::aGreyHasEqualComponents()
{
    QCOMPARE(components(QtKavoColorEditorFactoryPrivate::fromHsv(0, 0, 0.5f)),
        QVector<float>({ 0.5f, 0.5f, 0.5f, 1 }));
}

void tst_ColorEditor::pickingSetsTheColorAndAlphaToOne()
{
    QtProperty *property = add("diffuse", { 0, 0.5f, 0, 0.25f });
    QKAVOColorManipulator *editor = edit(property);
    QTest::keyClick(editor, Qt::Key_Space);
    editor->findChild<QDoubleSpinBox *>("HueField")->setValue(360);
    QCOMPARE(components(m_manager->value(property)),
        QVector<float>({ 0.5f, 0, 0.5f * (6 - 5.999833f), 1 }));
}

void tst_ColorEditor::theColorSurvivesThePickerUnrounded()
{
    QtProperty *property = add("diffuse", { 0.123456f, 0.654321f, 0.333333f, 1 });
    emit edit(property)->colorChanged();
    const colorVal value = m_manager->value(property);
    QVERIFY(std::abs(value.r - 0.123456f) < 1e-6f);
    QVERIFY(std::abs(value.g - 0.654321f) < 1e-6f);
    QVERIFY(std::abs(value.b - 0.333333f) < 1e-6f);
}

void tst_ColorEditor::aChangeFromElsewhereLeavesTheOpenPicker()
{
    QtProperty *property = add("diffuse", { 0, 1, 0, 1 });
    const QKAVOColorManipulator *editor = edit(property);
    m_manager->setValue(property, { 1, 0, 0, 1 });
    QCOMPARE(editor->getColor()[0], 120.0f);
}

void tst_ColorEditor::theSlotIgnoresForeignSenders()
{
    edit(add("diffuse", { 0, 1, 0, 1 }));
    QKAVOColorManipulator stranger(nullptr, nullptr);
    connect(&stranger, SIGNAL(colorChanged()), m_factory.get(), SLOT(slotSetValue()));
    QSignalSpy valueChanged(m_manager.get(), &QtKavoColorPropertyManager::valueChanged);
    emit stranger.colorChanged();
    QVERIFY(QMetaObject::invokeMethod(m_factory.get(), "slotSetValue"));
    QCOMPARE(valueChanged.count(), 0);
}

void tst_ColorEditor::removingTheManagerLeavesItsConnection()
{
    QtProperty *property = add("diffuse", { 0, 1, 0, 1 });
    QKAVOColorManipulator *editor = edit(property);
    QTest::ignoreMessage(QtWarningMsg,
        "QObject::disconnect: No such signal "
        "QtKavoColorPropertyManager::valueChanged(QtProperty *property, colorVal)");
    m_factory->removePropertyManager(m_manager.get());
    QVERIFY(disconnect(m_manager.get(), SIGNAL(valueChanged(QtProperty *, colorVal)),
        m_factory.get(), SLOT(slotPropertyChanged(QtProperty *, colorVal))));
    emit editor->colorChanged();
    QCOMPARE(components(m_manager->value(property)), QVector<float>({ 0, 1, 0, 1 }));
}

void tst_ColorEditor::aDestroyedEditorIsForgotten()
{
    QtProperty *property = add("diffuse", { 0, 1, 0, 1 });
    delete edit(property);
    QKAVOColorManipulator *editor = edit(property);
    emit editor->colorChanged();
    QCOMPARE(components(m_manager->value(property)), QVector<float>({ 0, 1, 0, 1 }));
}

void tst_ColorEditor::theFactoryDeletesItsOpenEditors()
{
    const QPointer<QKAVOColorManipulator> editor = edit(add("diffuse", { 0, 1, 0, 1 }));
    m_factory.reset();
    QVERIFY(!editor);
}

void tst_ColorEditor::anEditorOutlivesItsManager()
{
    QKAVOColorManipulator *editor = edit(add("diffuse", { 0, 1, 0, 1 }));
    m_manager.reset();
    emit editor->colorChanged();
    QCOMPARE(editor->getColor()[0], 120.0f);
}

QTEST_MAIN(tst_ColorEditor)
#include "tst_coloreditor.moc"
