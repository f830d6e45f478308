#include <kavoCustomPropertyGLenum_p.h>

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QtTest>

Q_DECLARE_METATYPE(QtProperty *)

namespace {

constexpr unsigned int nearest = 0x2600;
constexpr unsigned int linear = 0x2601;

struct Factory : QtGLenumEditorFactory
{
    using QtGLenumEditorFactory::createEditor;
};

QStringList items(const QComboBox &editor)
{
    QStringList texts;
    for (int i = 0; i < editor.count(); ++i)
        texts << editor.itemText(i);
    return texts;
}

QStringList ownMethods(const QMetaObject &metaObject)
{
    QStringList methods;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i)
        methods << metaObject.method(i).methodSignature();
    return methods;
}

}

class tst_GLenumProperty : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
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

private:
    QtProperty *add(const QString &name, unsigned int value);
    QComboBox *edit(QtProperty *property);

    QtGLenumPropertyManager *m_manager = nullptr;
    Factory *m_factory = nullptr;
    QWidget *m_parent = nullptr;
};

void tst_GLenumProperty::initTestCase()
{
    qRegisterMetaType<QtProperty *>("QtProperty*");
}

void tst_GLenumProperty::init()
{
    m_parent = new QWidget;
    m_manager = new QtGLenumPropertyManager;
    m_factory = new Factory;
    m_factory->addPropertyManager(m_manager);
}

void tst_GLenumProperty::cleanup()
{
    delete m_factory;
    delete m_manager;
    delete m_parent;
}

QtProperty *tst_GLenumProperty::add(const QString &name, unsigned int value)
{
    QtProperty *property = m_manager->addProperty(name);
    m_manager->setValue(property, value);
    return property;
}

QComboBox *tst_GLenumProperty::edit(QtProperty *property)
{
    return qobject_cast<QComboBox *>(m_factory->createEditor(m_manager, property, m_parent));
}

void tst_GLenumProperty::metaObjectsHoldExactlyTheKnownSignalsAndSlots()
{
    QCOMPARE(ownMethods(QtGLenumPropertyManager::staticMetaObject),
        QStringList({ "valueChanged(QtProperty*,uint)", "setValue(QtProperty*,uint)" }));
    QCOMPARE(ownMethods(QtGLenumEditorFactory::staticMetaObject),
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
    QSignalSpy propertyChanged(m_manager, &QtAbstractPropertyManager::propertyChanged);
    QSignalSpy valueChanged(m_manager, &QtGLenumPropertyManager::valueChanged);
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
    connect(m_manager, &QtGLenumPropertyManager::valueChanged, this,
        [&order](QtProperty *changed) { order << "value " + changed->valueText(); });
    connect(m_manager, &QtAbstractPropertyManager::propertyChanged, this,
        [&order](QtProperty *changed) { order << "property " + changed->valueText(); });
    m_manager->setValue(property, linear);
    QCOMPARE(order, QStringList({ "property GL_LINEAR", "value GL_LINEAR" }));
}

void tst_GLenumProperty::foreignPropertiesAreIgnored()
{
    QtGLenumPropertyManager other;
    QtProperty *foreign = other.addProperty("minFilter");
    QSignalSpy valueChanged(m_manager, &QtGLenumPropertyManager::valueChanged);
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

void tst_GLenumProperty::comboBoxIsSetUpForANarrowColumn()
{
    QComboBox *editor = edit(add("minFilter", linear));
    QCOMPARE(editor->parentWidget(), m_parent);
    QCOMPARE(editor->sizeAdjustPolicy(), QComboBox::AdjustToMinimumContentsLengthWithIcon);
    QCOMPARE(editor->minimumContentsLength(), 1);
    QCOMPARE(editor->view()->textElideMode(), Qt::ElideRight);
}

void tst_GLenumProperty::wrapOffersItsNamesAndUnknowns()
{
    QComboBox *editor = edit(add("wrapS", 0x2901));
    QCOMPARE(
        items(*editor), QStringList({ "GL_CLAMP", "GL_REPEAT", "unknown", "unknown", "unknown" }));
    QCOMPARE(editor->currentText(), QStringLiteral("GL_REPEAT"));
}

void tst_GLenumProperty::itemDataIsTheUnsignedValueAndIconsAreEmpty()
{
    QComboBox *editor = edit(add("magFilter", linear));
    QCOMPARE(editor->itemData(0), QVariant(nearest));
    QCOMPARE(editor->itemData(0).type(), QVariant::UInt);
    QCOMPARE(editor->itemData(1), QVariant(linear));
    QVERIFY(editor->itemIcon(0).isNull());
}

void tst_GLenumProperty::otherFieldsOfferTheFirstGroupWithTheirValue_data()
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

void tst_GLenumProperty::otherFieldsOfferTheFirstGroupWithTheirValue()
{
    QFETCH(unsigned int, value);
    QComboBox *editor = edit(add("MinFilter", value));
    QTEST(items(*editor).join(' '), "names");
    QTEST(editor->currentText(), "selected");
}

void tst_GLenumProperty::aValueInNoGroupLeavesTheComboBoxEmpty()
{
    QComboBox *editor = edit(add("cullFace", 1));
    QCOMPARE(editor->count(), 0);
    QCOMPARE(editor->currentIndex(), -1);
}

void tst_GLenumProperty::anEditorOfAForeignPropertyOffersTheGroupOfZero()
{
    QtGLenumPropertyManager other;
    QScopedPointer<QComboBox> editor(edit(other.addProperty("cullFace")));
    QCOMPARE(items(*editor), QStringList("GL_NONE"));
    QCOMPARE(editor->currentIndex(), 0);
}

void tst_GLenumProperty::aValueWithoutNameIsSelectedAsUnknown()
{
    QtProperty *property = add("wrapS", 0x812F);
    QComboBox *editor = edit(property);
    QCOMPARE(property->valueText(), QString());
    QCOMPARE(editor->currentText(), QStringLiteral("unknown"));
    QCOMPARE(editor->currentIndex(), 3);
}

void tst_GLenumProperty::aValueOutsideTheAllowedSetSelectsNothing()
{
    QtProperty *property = add("magFilter", 0x2703);
    QComboBox *editor = edit(property);
    QCOMPARE(editor->currentIndex(), -1);
    QCOMPARE(property->valueText(), QStringLiteral("GL_LINEAR_MIPMAP_LINEAR"));
    editor->setCurrentIndex(0);
    QCOMPARE(m_manager->value(property), nearest);
}

void tst_GLenumProperty::choosingAnItemSetsTheValue()
{
    QtProperty *property = add("minFilter", nearest);
    QSignalSpy valueChanged(m_manager, &QtGLenumPropertyManager::valueChanged);
    edit(property)->setCurrentIndex(1);
    QCOMPARE(m_manager->value(property), linear);
    QCOMPARE(valueChanged.count(), 1);
    QCOMPARE(valueChanged.first().first().value<QtProperty *>(), property);
}

void tst_GLenumProperty::choosingAnUnknownItemSetsItsValue()
{
    QtProperty *property = add("wrapS", 0x2901);
    edit(property)->setCurrentIndex(4);
    QCOMPARE(m_manager->value(property), 0x8370u);
}

void tst_GLenumProperty::clearingTheComboBoxChangesNothing()
{
    QtProperty *property = add("minFilter", linear);
    QSignalSpy valueChanged(m_manager, &QtGLenumPropertyManager::valueChanged);
    edit(property)->clear();
    QCOMPARE(valueChanged.count(), 0);
    QCOMPARE(m_manager->value(property), linear);
}

void tst_GLenumProperty::theSlotIgnoresForeignSenders()
{
    edit(add("minFilter", linear));
    QSignalSpy valueChanged(m_manager, &QtGLenumPropertyManager::valueChanged);
    QVERIFY(QMetaObject::invokeMethod(m_factory, "slotSetValue", Q_ARG(unsigned int, 0)));
    QCOMPARE(valueChanged.count(), 0);
}

void tst_GLenumProperty::anItemWithoutNumberGivesZero()
{
    QtProperty *property = add("minFilter", linear);
    QComboBox *editor = edit(property);
    editor->addItem("text", "text");
    editor->setCurrentIndex(editor->count() - 1);
    QCOMPARE(m_manager->value(property), 0u);
}

void tst_GLenumProperty::openEditorsFollowTheManagerWithoutSettingItAgain()
{
    QtProperty *property = add("minFilter", nearest);
    const QComboBox *first = edit(property);
    const QComboBox *second = edit(property);
    QSignalSpy valueChanged(m_manager, &QtGLenumPropertyManager::valueChanged);
    m_manager->setValue(property, linear);
    QCOMPARE(valueChanged.count(), 1);
    QCOMPARE(first->currentText(), QStringLiteral("GL_LINEAR"));
    QCOMPARE(second->currentText(), QStringLiteral("GL_LINEAR"));
    QVERIFY(!first->signalsBlocked());
}

void tst_GLenumProperty::openEditorsShowNothingForAValueTheyDoNotOffer()
{
    QtProperty *property = add("magFilter", nearest);
    const QComboBox *editor = edit(property);
    m_manager->setValue(property, 0x2703);
    QCOMPARE(editor->currentIndex(), -1);
    QCOMPARE(m_manager->value(property), 0x2703u);
}

void tst_GLenumProperty::aRemovedManagerIsNoLongerFollowedNorSet()
{
    QtProperty *property = add("minFilter", nearest);
    QComboBox *editor = edit(property);
    m_factory->removePropertyManager(m_manager);
    m_manager->setValue(property, linear);
    QCOMPARE(editor->currentText(), QStringLiteral("GL_NEAREST"));
    editor->setCurrentIndex(2);
    QCOMPARE(m_manager->value(property), linear);
}

void tst_GLenumProperty::aDestroyedEditorIsForgotten()
{
    QtProperty *property = add("minFilter", nearest);
    delete edit(property);
    m_manager->setValue(property, linear);
    QComboBox *editor = edit(property);
    QCOMPARE(editor->currentText(), QStringLiteral("GL_LINEAR"));
}

void tst_GLenumProperty::theFactoryDeletesItsOpenEditors()
{
    const QPointer<QComboBox> editor = edit(add("minFilter", nearest));
    delete m_factory;
    m_factory = nullptr;
    QVERIFY(!editor);
}

void tst_GLenumProperty::anEditorOutlivesItsManager()
{
    QComboBox *editor = edit(add("minFilter", nearest));
    delete m_manager;
    m_manager = nullptr;
    editor->setCurrentIndex(1);
    QCOMPARE(editor->currentText(), QStringLiteral("GL_LINEAR"));
}

void tst_GLenumProperty::anEditorOutlivesItsPropertyAndTheFactory()
{
    QtProperty *property = add("minFilter", nearest);
    QComboBox *editor = edit(property);
    delete property;
    editor->setCurrentIndex(1);
    delete m_factory;
    m_factory = nullptr;
    delete add("minFilter", linear);
    QCOMPARE(editor->currentIndex(), 1);
}

QTEST_MAIN(tst_GLenumProperty)
#include "tst_glenumproperty.moc"
