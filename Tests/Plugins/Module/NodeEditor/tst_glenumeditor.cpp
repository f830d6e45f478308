#include "kavoEditorFixture.h"

#include <kavoCustomPropertyGLenum_p.h>

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr unsigned int nearest = 0x2600;
constexpr unsigned int linear = 0x2601;

QStringList items(const QComboBox &editor)
{
    QStringList texts;
    for (int i = 0; i < editor.count(); ++i)
        texts << editor.itemText(i);
    return texts;
}

} // namespace

using Fixture
    = kavoEditorFixture<QtGLenumPropertyManager, QtGLenumEditorFactory, QComboBox, unsigned int>;

class tst_GLenumEditor : public QObject, private Fixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void comboBoxIsSetUpForANarrowColumn();
    void wrapOffersItsNamesAndUnknowns();
    void itemDataIsTheUnsignedValueAndIconsAreEmpty();
    void otherFieldsOfferTheFirstGroupWithTheirValue_data();
    void otherFieldsOfferTheFirstGroupWithTheirValue();
    void aValueInNoGroupLeavesTheComboBoxEmpty();
    void anEditorOfAForeignPropertyOffersTheGroupOfZero();
    void aValueWithoutNameIsSelectedAsUnknown();
    void aValueOutsideTheAllowedSetSelectsNothing();
    void choosingAnItemSetsTheValue();
    void choosingAnUnknownItemSetsItsValue();
    void clearingTheComboBoxChangesNothing();
    void theSlotIgnoresForeignSenders();
    void anItemWithoutNumberGivesZero();
    void openEditorsFollowTheManagerWithoutSettingItAgain();
    void openEditorsShowNothingForAValueTheyDoNotOffer();
    void aRemovedManagerIsNoLongerFollowedNorSet();
    void aDestroyedEditorIsForgotten();
    void theFactoryDeletesItsOpenEditors();
    void anEditorOutlivesItsManager();
    void anEditorOutlivesItsPropertyAndTheFactory();
};

void tst_GLenumEditor::init()
{
    setUp();
}

void tst_GLenumEditor::cleanup()
{
    tearDown();
}

void tst_GLenumEditor::comboBoxIsSetUpForANarrowColumn()
{
    QComboBox *editor = edit(add("minFilter", linear));
    QCOMPARE(editor->parentWidget(), m_parent.get());
    QCOMPARE(editor->sizeAdjustPolicy(), QComboBox::AdjustToMinimumContentsLengthWithIcon);
    QCOMPARE(editor->minimumContentsLength(), 1);
    QCOMPARE(editor->view()->textElideMode(), Qt::ElideRight);
}

void tst_GLenumEditor::wrapOffersItsNamesAndUnknowns()
{
    QComboBox *editor = edit(add("wrapS", 0x2901));
    QCOMPARE(
        items(*editor), QStringList({ "GL_CLAMP", "GL_REPEAT", "unknown", "unknown", "unknown" }));
    QCOMPARE(editor->currentText(), QStringLiteral("GL_REPEAT"));
}

void tst_GLenumEditor::itemDataIsTheUnsignedValueAndIconsAreEmpty()
{
    QComboBox *editor = edit(add("magFilter", linear));
    QCOMPARE(editor->itemData(0), QVariant(nearest));
    QCOMPARE(editor->itemData(0).type(), QVariant::UInt);
    QCOMPARE(editor->itemData(1), QVariant(linear));
    QVERIFY(editor->itemIcon(0).isNull());
}

void tst_GLenumEditor::otherFieldsOfferTheFirstGroupWithTheirValue_data()
{
    QTest::addColumn<unsigned int>("value");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("selected");
    QTest::newRow("linear") << linear << "GL_NEAREST GL_LINEAR"
                            << "GL_LINEAR";
    QTest::newRow("zero") << 0u << "GL_NONE"
                          << "GL_NONE";
    QTest::newRow("back")
        << 0x0405u
        << "GL_NEVER GL_LESS GL_EQUAL GL_LEQUAL GL_GREATER GL_NOTEQUAL GL_GEQUAL GL_ALWAYS "
           "GL_STENCIL_BUFFER_BIT GL_FRONT_RIGHT GL_BACK_LEFT GL_BACK_RIGHT GL_FRONT GL_BACK "
           "GL_LEFT GL_RIGHT GL_FRONT_AND_BACK GL_AUX0 GL_AUX1 GL_AUX2 GL_AUX3"
        << "GL_BACK";
}

void tst_GLenumEditor::otherFieldsOfferTheFirstGroupWithTheirValue()
{
    QFETCH(unsigned int, value);
    QComboBox *editor = edit(add("MinFilter", value));
    QTEST(items(*editor).join(' '), "names");
    QTEST(editor->currentText(), "selected");
}

void tst_GLenumEditor::aValueInNoGroupLeavesTheComboBoxEmpty()
{
    QComboBox *editor = edit(add("cullFace", 1));
    QCOMPARE(editor->count(), 0);
    QCOMPARE(editor->currentIndex(), -1);
}

void tst_GLenumEditor::anEditorOfAForeignPropertyOffersTheGroupOfZero()
{
    QtGLenumPropertyManager other;
    QScopedPointer<QComboBox> editor(edit(other.addProperty("cullFace")));
    QCOMPARE(items(*editor), QStringList("GL_NONE"));
    QCOMPARE(editor->currentIndex(), 0);
}

void tst_GLenumEditor::aValueWithoutNameIsSelectedAsUnknown()
{
    QtProperty *property = add("wrapS", 0x812F);
    QComboBox *editor = edit(property);
    QCOMPARE(property->valueText(), QString());
    QCOMPARE(editor->currentText(), QStringLiteral("unknown"));
    QCOMPARE(editor->currentIndex(), 3);
}

void tst_GLenumEditor::aValueOutsideTheAllowedSetSelectsNothing()
{
    QtProperty *property = add("magFilter", 0x2703);
    QComboBox *editor = edit(property);
    QCOMPARE(editor->currentIndex(), -1);
    QCOMPARE(property->valueText(), QStringLiteral("GL_LINEAR_MIPMAP_LINEAR"));
    editor->setCurrentIndex(0);
    QCOMPARE(m_manager->value(property), nearest);
}

void tst_GLenumEditor::choosingAnItemSetsTheValue()
{
    QtProperty *property = add("minFilter", nearest);
    QSignalSpy valueChanged(m_manager.get(), &QtGLenumPropertyManager::valueChanged);
    edit(property)->setCurrentIndex(1);
    QCOMPARE(m_manager->value(property), linear);
    QCOMPARE(valueChanged.count(), 1);
    QCOMPARE(valueChanged.first().first().value<QtProperty *>(), property);
}

void tst_GLenumEditor::choosingAnUnknownItemSetsItsValue()
{
    QtProperty *property = add("wrapS", 0x2901);
    edit(property)->setCurrentIndex(4);
    QCOMPARE(m_manager->value(property), 0x8370u);
}

void tst_GLenumEditor::clearingTheComboBoxChangesNothing()
{
    QtProperty *property = add("minFilter", linear);
    QSignalSpy valueChanged(m_manager.get(), &QtGLenumPropertyManager::valueChanged);
    edit(property)->clear();
    QCOMPARE(valueChanged.count(), 0);
    QCOMPARE(m_manager->value(property), linear);
}

void tst_GLenumEditor::theSlotIgnoresForeignSenders()
{
    edit(add("minFilter", linear));
    QSignalSpy valueChanged(m_manager.get(), &QtGLenumPropertyManager::valueChanged);
    QVERIFY(QMetaObject::invokeMethod(m_factory.get(), "slotSetValue", Q_ARG(unsigned int, 0)));
    QCOMPARE(valueChanged.count(), 0);
}

void tst_GLenumEditor::anItemWithoutNumberGivesZero()
{
    QtProperty *property = add("minFilter", linear);
    QComboBox *editor = edit(property);
    editor->addItem("text", "text");
    editor->setCurrentIndex(editor->count() - 1);
    QCOMPARE(m_manager->value(property), 0u);
}

void tst_GLenumEditor::openEditorsFollowTheManagerWithoutSettingItAgain()
{
    QtProperty *property = add("minFilter", nearest);
    const QComboBox *first = edit(property);
    const QComboBox *second = edit(property);
    QSignalSpy valueChanged(m_manager.get(), &QtGLenumPropertyManager::valueChanged);
    m_manager->setValue(property, linear);
    QCOMPARE(valueChanged.count(), 1);
    QCOMPARE(first->currentText(), QStringLiteral("GL_LINEAR"));
    QCOMPARE(second->currentText(), QStringLiteral("GL_LINEAR"));
    QVERIFY(!first->signalsBlocked());
}

void tst_GLenumEditor::openEditorsShowNothingForAValueTheyDoNotOffer()
{
    QtProperty *property = add("magFilter", nearest);
    const QComboBox *editor = edit(property);
    m_manager->setValue(property, 0x2703);
    QCOMPARE(editor->currentIndex(), -1);
    QCOMPARE(m_manager->value(property), 0x2703u);
}

void tst_GLenumEditor::aRemovedManagerIsNoLongerFollowedNorSet()
{
    QtProperty *property = add("minFilter", nearest);
    QComboBox *editor = edit(property);
    m_factory->removePropertyManager(m_manager.get());
    m_manager->setValue(property, linear);
    QCOMPARE(editor->currentText(), QStringLiteral("GL_NEAREST"));
    editor->setCurrentIndex(2);
    QCOMPARE(m_manager->value(property), linear);
}

void tst_GLenumEditor::aDestroyedEditorIsForgotten()
{
    QtProperty *property = add("minFilter", nearest);
    delete edit(property);
    m_manager->setValue(property, linear);
    QComboBox *editor = edit(property);
    QCOMPARE(editor->currentText(), QStringLiteral("GL_LINEAR"));
}

void tst_GLenumEditor::theFactoryDeletesItsOpenEditors()
{
    const QPointer<QComboBox> editor = edit(add("minFilter", nearest));
    m_factory.reset();
    QVERIFY(!editor);
}

void tst_GLenumEditor::anEditorOutlivesItsManager()
{
    QComboBox *editor = edit(add("minFilter", nearest));
    m_manager.reset();
    editor->setCurrentIndex(1);
    QCOMPARE(editor->currentText(), QStringLiteral("GL_LINEAR"));
}

void tst_GLenumEditor::anEditorOutlivesItsPropertyAndTheFactory()
{
    QtProperty *property = add("minFilter", nearest);
    QComboBox *editor = edit(property);
    delete property;
    editor->setCurrentIndex(1);
    m_factory.reset();
    delete add("minFilter", linear);
    QCOMPARE(editor->currentIndex(), 1);
}

QTEST_MAIN(tst_GLenumEditor)
#include "tst_glenumeditor.moc"
