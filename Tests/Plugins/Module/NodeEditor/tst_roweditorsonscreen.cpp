#include <kavoCustomPropertyColor.h>
#include <kavoCustomPropertyGLenum.h>

#include <QKAVOColorManipulator.h>
#include <kavoRealInput.h>

#include <qttreepropertybrowser.h>

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

// Colour and enumeration editors in rows of a property tree.
class tst_RowEditorsOnScreen : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void anEnumerationIsChosenWithTheMouse();
    void anEnumerationIsChosenWithTheKeyboard();
    void aColorIsChosenWithTheMouse();
    void aColorIsChosenWithTheKeyboard();
    void escapeInThePopupKeepsTheEditorAndTheOldColor();
    void enterInTheEditorClosesIt();
    void anotherRowEndsTheEditing();
    void removingThePropertyClosesThePopup();

private:
    void clickValue(int row);
    QTreeWidget *tree() const { return m_browser->findChild<QTreeWidget *>(); }
    QKAVOColorManipulator *picker() const
    {
        return m_browser->findChild<QKAVOColorManipulator *>();
    }
    QWidget *popup() const { return picker()->findChild<QWidget *>("colorPopup"); }
    QString valueText(int row) const { return tree()->topLevelItem(row)->text(1); }

    QTemporaryDir m_settings;
    QtTreePropertyBrowser *m_browser = nullptr;
    QtGLenumPropertyManager *m_enums = nullptr;
    QtKavoColorPropertyManager *m_colors = nullptr;
    QtProperty *m_filter = nullptr;
    QtProperty *m_diffuse = nullptr;
};

void tst_RowEditorsOnScreen::initTestCase()
{
    QCoreApplication::setOrganizationName("kavotest");
    QCoreApplication::setApplicationName("roweditorsonscreen");
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
}

void tst_RowEditorsOnScreen::init()
{
    m_browser = new QtTreePropertyBrowser;
    m_enums = new QtGLenumPropertyManager(m_browser);
    m_colors = new QtKavoColorPropertyManager(m_browser);
    m_browser->setFactoryForManager(m_enums, new QtGLenumEditorFactory(m_browser));
    m_browser->setFactoryForManager(m_colors, new QtKavoColorEditorFactory(m_browser));
    m_filter = m_enums->addProperty("minFilter");
    m_enums->setValue(m_filter, 0x2600);
    m_diffuse = m_colors->addProperty("diffuse");
    m_colors->setValue(m_diffuse, { 1, 0, 0, 0.5f });
    m_browser->addProperty(m_filter);
    m_browser->addProperty(m_diffuse);
    m_browser->setGeometry(100, 100, 400, 200);
    m_browser->show();
    m_browser->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_browser));
}

// The component keeps pointers to a browser until its factories are unset.
void tst_RowEditorsOnScreen::cleanup()
{
    m_browser->unsetFactoryForManager(m_enums);
    m_browser->unsetFactoryForManager(m_colors);
    delete m_browser;
}

void tst_RowEditorsOnScreen::clickValue(int row)
{
    const QTreeWidget *view = tree();
    const QRect rect = view->visualRect(view->model()->index(row, 1));
    kavoRealInput::click(view->viewport()->mapToGlobal(rect.center()));
}

void tst_RowEditorsOnScreen::anEnumerationIsChosenWithTheMouse()
{
    clickValue(0);
    auto *editor = qobject_cast<QComboBox *>(QApplication::focusWidget());
    QVERIFY(editor);
    kavoRealInput::click(editor);
    const QAbstractItemView *list = editor->view();
    QTRY_VERIFY(list->isVisible());
    const QRect linear = list->visualRect(list->model()->index(1, 0));
    QTest::qWait(QApplication::doubleClickInterval());
    kavoRealInput::click(list->viewport()->mapToGlobal(linear.center()));
    QTRY_COMPARE(m_enums->value(m_filter), 9729u);
    QCOMPARE(valueText(0), QStringLiteral("GL_LINEAR"));
}

void tst_RowEditorsOnScreen::anEnumerationIsChosenWithTheKeyboard()
{
    clickValue(0);
    kavoRealInput::press({ "alt+Down", "Down", "Down", "Return" });
    QTRY_COMPARE(m_enums->value(m_filter), 0x2700u);
    QTRY_VERIFY(!m_browser->findChild<QComboBox *>());
    QVERIFY(tree()->hasFocus());
    QCOMPARE(valueText(0), QStringLiteral("GL_NEAREST_MIPMAP_NEAREST"));
}

void tst_RowEditorsOnScreen::aColorIsChosenWithTheMouse()
{
    clickValue(1);
    QVERIFY(picker());
    kavoRealInput::click(picker());
    QTRY_VERIFY(popup() && popup()->isVisible());
    const auto *wheel = popup()->findChild<QWidget *>("wheel");
    kavoRealInput::click(wheel->mapToGlobal(QPoint(5, wheel->height() / 2)));
    QTRY_VERIFY(m_colors->value(m_diffuse).g > 0.9f);
    QVERIFY(m_colors->value(m_diffuse).r < 0.1f);
    QCOMPARE(m_colors->value(m_diffuse).a, 1.0f);
    QVERIFY(popup()->isVisible());
}

void tst_RowEditorsOnScreen::aColorIsChosenWithTheKeyboard()
{
    clickValue(1);
    kavoRealInput::press({ "alt+Down" });
    kavoRealInput::type("#0000ff");
    kavoRealInput::press({ "Return" });
    QTRY_COMPARE(valueText(1), QStringLiteral("0.00 0.00 1.00 1.00"));
    QVERIFY(picker() && picker()->hasFocus());
    QVERIFY(!popup()->isVisible());
}

void tst_RowEditorsOnScreen::escapeInThePopupKeepsTheEditorAndTheOldColor()
{
    clickValue(1);
    kavoRealInput::press({ "space" });
    kavoRealInput::type("#0000ff");
    QTRY_COMPARE(m_colors->value(m_diffuse).b, 1.0f);
    kavoRealInput::press({ "Escape" });
    QTRY_COMPARE(m_colors->value(m_diffuse).r, 1.0f);
    QCOMPARE(m_colors->value(m_diffuse).b, 0.0f);
    QVERIFY(picker() && picker()->hasFocus());
    kavoRealInput::press({ "Escape" });
    QTRY_VERIFY(!picker());
    QVERIFY(tree()->hasFocus());
}

void tst_RowEditorsOnScreen::enterInTheEditorClosesIt()
{
    clickValue(1);
    QVERIFY(picker());
    kavoRealInput::press({ "Return" });
    QTRY_VERIFY(!picker());
    QCOMPARE(m_colors->value(m_diffuse).a, 0.5f);
}

void tst_RowEditorsOnScreen::anotherRowEndsTheEditing()
{
    clickValue(1);
    kavoRealInput::press({ "F4", "Escape" });
    clickValue(0);
    QTRY_VERIFY(!picker());
    QVERIFY(qobject_cast<QComboBox *>(QApplication::focusWidget()));
}

void tst_RowEditorsOnScreen::removingThePropertyClosesThePopup()
{
    clickValue(1);
    kavoRealInput::press({ "alt+Down" });
    QTRY_VERIFY(popup() && popup()->isVisible());
    delete m_diffuse;
    QTRY_VERIFY(!picker());
    QVERIFY(!QApplication::activePopupWidget());
    clickValue(0);
    QVERIFY(qobject_cast<QComboBox *>(QApplication::focusWidget()));
}

QTEST_MAIN(tst_RowEditorsOnScreen)
#include "tst_roweditorsonscreen.moc"
