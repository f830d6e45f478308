#include "OSGFieldSampler.h"
#include "kavoTreeRows.h"

#include <QKAVODockWindowManager.h>
#include <kavoNodeEditor.h>
#include <kavoRealInput.h>
#include <kavoTestHost.h>

#include <OpenSG/OSGTextureChunk.h>

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

using namespace kavoTreeRows;

// Uses the docked editor with the mouse and keyboard of the X server only.
class tst_Editing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aCheckBoxIsClicked();
    void aWholeNumberIsTyped();
    void anArrowKeySteps();
    void aRealNumberIsTyped();
    void aVectorIsTyped();
    void aStringIsTyped();
    void aNumberListIsTyped();
    void anEnumIsChosenWithTheMouse();
    void anEnumIsChosenWithTheKeyboard();
    void aColorIsChosenWithTheMouse();
    void aColorIsTypedIntoThePopup();
    void aColorIsPasted();
    void leavingTheRowKeepsWhatWasTyped();
    void escapeTakesBackWhatWasTyped();
    void aNewSelectionDropsWhatWasNotFinished();

private:
    kavoFCEditorWidget &editor() const;
    QTreeWidget &view() const;
    QWidget *open(const QString &title);
    void type(const QString &title, const QString &text);
    void replace(const QString &title, const QString &text);
    void show(const osg::FieldContainerPtr &container);

    QTemporaryDir m_settings;
    kavoNodeEditor *m_module = nullptr;
    osg::FieldSamplerPtr m_sampler;
};

void tst_Editing::initTestCase()
{
    QCoreApplication::setOrganizationName("kavotest");
    QCoreApplication::setApplicationName("editing");
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    m_module = new kavoNodeEditor;
    QVERIFY(kavoTestHost::show());
    kavoTestHost::docks().show("Node Editor");
    kavoTestHost::mainWindow().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&kavoTestHost::mainWindow()));
}

void tst_Editing::init()
{
    m_sampler = osg::FieldSampler::create();
    osg::addRefCP(m_sampler);
    m_sampler->color3.setValue(osg::Color3f(1, 0, 0));
    m_sampler->color4.setValue(osg::Color4f(1, 0, 0, 0.5f));
    show(m_sampler);
}

void tst_Editing::cleanup()
{
    m_module->setNode(osg::NullFC);
    osg::subRefCP(m_sampler);
}

kavoFCEditorWidget &tst_Editing::editor() const
{
    return *m_module->getWidget()->findChild<kavoFCEditorWidget *>();
}

QTreeWidget &tst_Editing::view() const
{
    return *editor().findChild<QTreeWidget *>();
}

void tst_Editing::show(const osg::FieldContainerPtr &container)
{
    editor().setFC("it", container);
    QTRY_VERIFY(view().topLevelItemCount() == 1);
}

// Clicks into the value column of a row and returns the editor that opened.
QWidget *tst_Editing::open(const QString &title)
{
    QTreeWidgetItem *item = view().findItems(title, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    view().scrollToItem(item);
    const int x = view().columnViewportPosition(1) + 30;
    const QPoint position(x, view().visualItemRect(item).center().y());
    QTest::qWait(QApplication::doubleClickInterval());
    kavoRealInput::click(view().viewport()->mapToGlobal(position));
    return view().itemWidget(item, 1);
}

// Replaces the text of a row without ending the edit.
void tst_Editing::type(const QString &title, const QString &text)
{
    QVERIFY(open(title));
    kavoRealInput::press({ "ctrl+a" });
    kavoRealInput::type(text);
}

void tst_Editing::replace(const QString &title, const QString &text)
{
    type(title, text);
    kavoRealInput::press({ "Return" });
}

void tst_Editing::aCheckBoxIsClicked()
{
    QWidget *box = open("flag");
    QVERIFY(box);
    const QPoint mark = box->mapToGlobal(QPoint(8, box->height() / 2));
    kavoRealInput::click(mark);
    QTRY_VERIFY(m_sampler->flag.getValue());
    QTest::qWait(QApplication::doubleClickInterval());
    kavoRealInput::click(mark);
    QTRY_VERIFY(!m_sampler->flag.getValue());
}

void tst_Editing::aWholeNumberIsTyped()
{
    replace("int16", "-1234");
    QTRY_COMPARE(int(m_sampler->int16.getValue()), -1234);
    QCOMPARE(m_sampler->changes, 1);
}

void tst_Editing::anArrowKeySteps()
{
    QVERIFY(open("uint8"));
    kavoRealInput::press({ "Up", "Up", "Down" });
    QTRY_COMPARE(m_sampler->changes, 3);
    QCOMPARE(int(m_sampler->uint8.getValue()), 1);
}

void tst_Editing::aRealNumberIsTyped()
{
    replace("real32", "1.25e-7");
    QTRY_VERIFY(m_sampler->real32.getValue() == 1.25e-7f);
    QCOMPARE(m_sampler->changes, 1);
}

void tst_Editing::aVectorIsTyped()
{
    replace("vector", "1, -2.5, 3e2");
    QTRY_VERIFY(m_sampler->vector.getValue() == osg::Vec3f(1, -2.5f, 300));
}

void tst_Editing::aStringIsTyped()
{
    replace("text", "a \"b\" c");
    QTRY_COMPARE(m_sampler->text.getValue(), std::string("a \"b\" c"));
}

void tst_Editing::aNumberListIsTyped()
{
    replace("reals", "0.5, 1 2e3");
    QTRY_COMPARE(int(m_sampler->reals.size()), 3);
    QTRY_COMPARE(m_sampler->reals[2], 2000.f);
}

void tst_Editing::anEnumIsChosenWithTheMouse()
{
    const osg::TextureChunkPtr chunk = osg::TextureChunk::create();
    osg::addRefCP(chunk);
    show(chunk);
    auto *box = qobject_cast<QComboBox *>(open("minFilter"));
    QVERIFY(box);
    kavoRealInput::click(box);
    QTRY_VERIFY(box->view()->isVisible());
    const QModelIndex linear = box->model()->index(box->findText("GL_LINEAR"), 0);
    const QPoint item = box->view()->visualRect(linear).center();
    QTest::qWait(QApplication::doubleClickInterval());
    kavoRealInput::click(box->view()->viewport()->mapToGlobal(item));
    QTRY_COMPARE(chunk->getMinFilter(), GLenum(9729));
    show(m_sampler);
    osg::subRefCP(chunk);
}

void tst_Editing::anEnumIsChosenWithTheKeyboard()
{
    m_sampler->minFilter.setValue(9728);
    show(m_sampler);
    QVERIFY(open("minFilter"));
    kavoRealInput::press({ "Down" });
    QTRY_COMPARE(m_sampler->minFilter.getValue(), GLenum(9729));
    QCOMPARE(text(editor(), "minFilter"), QString("GL_LINEAR"));
}

void tst_Editing::aColorIsChosenWithTheMouse()
{
    QWidget *picker = open("color4");
    QVERIFY(picker);
    QTest::qWait(QApplication::doubleClickInterval());
    kavoRealInput::click(picker);
    const auto *wheel = picker->findChild<QWidget *>("wheel");
    QTRY_VERIFY(wheel && wheel->isVisible());
    kavoRealInput::click(wheel->mapToGlobal(QPoint(5, wheel->height() / 2)));
    const osg::Color4f &color = m_sampler->color4.getValue();
    QTRY_VERIFY(color[0] < 0.1f && color[1] > 0.9f && color[2] > 0.9f);
    QCOMPARE(color[3], 1.f);
    kavoRealInput::press({ "Return" });
    QTRY_VERIFY(!wheel->isVisible());
}

void tst_Editing::aColorIsTypedIntoThePopup()
{
    QVERIFY(open("color3"));
    kavoRealInput::press({ "alt+Down" });
    kavoRealInput::type("#0000ff");
    kavoRealInput::press({ "Return" });
    QTRY_VERIFY(m_sampler->color3.getValue() == osg::Color3f(0, 0, 1));
    QCOMPARE(text(editor(), "color3"), QString("0.00 0.00 1.00 1.00"));
    QTRY_VERIFY(!QApplication::activePopupWidget());
}

void tst_Editing::aColorIsPasted()
{
    QGuiApplication::clipboard()->setText("#00ff00");
    QVERIFY(open("color4"));
    kavoRealInput::press({ "ctrl+v" });
    QTRY_VERIFY(m_sampler->color4.getValue() == osg::Color4f(0, 1, 0, 1));
    QCOMPARE(text(editor(), "color4"), QString("0.00 1.00 0.00 1.00"));
}

void tst_Editing::leavingTheRowKeepsWhatWasTyped()
{
    type("real64", "12.5");
    QCOMPARE(m_sampler->real64.getValue(), 0.);
    QVERIFY(open("flag"));
    QTRY_COMPARE(m_sampler->real64.getValue(), 12.5);
}

void tst_Editing::escapeTakesBackWhatWasTyped()
{
    type("real64", "12.5");
    kavoRealInput::press({ "Escape" });
    QTRY_VERIFY(view().hasFocus());
    QCOMPARE(m_sampler->changes, 0);
    QCOMPARE(text(editor(), "real64"), QString("0"));
}

void tst_Editing::aNewSelectionDropsWhatWasNotFinished()
{
    type("real64", "12.5");
    m_module->setNode(osg::NullFC);
    QCoreApplication::processEvents();
    QCOMPARE(m_sampler->real64.getValue(), 0.);
    QCOMPARE(m_sampler->changes, 0);
}

KAVO_TEST_MAIN(tst_Editing)
#include "tst_editing.moc"
