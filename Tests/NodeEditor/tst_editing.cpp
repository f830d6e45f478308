#include "OSGFieldSampler.h"
#include "kavoTreeRows.h"

#include <QKAVODockWindowManager.h>
#include <kavoMessageIds.h>
#include <kavoNodeEditor.h>
#include <kavoTestHost.h>
#include <kavoTestScene.h>

#include <OpenSG/OSGTextureChunk.h>

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QTreeWidget>
#include <QWindow>
#include <QtTest>

using namespace kavoTreeRows;

// Drives the docked editor through its window with the mouse and the keyboard alone.
class TestEditing : public QObject
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
    void aColorIsPasted();
    void leavingTheRowKeepsWhatWasTyped();
    void aNewSelectionDropsWhatWasNotFinished();

private:
    kavoFCEditorWidget &editor() const;
    QTreeWidget &view() const;
    QWidget *open(const QString &title);
    void click(QWidget *widget, const QPoint &position);
    void click(QWidget *widget) { click(widget, widget->rect().center()); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);
    void replace(const QString &title, const QString &text);
    void show(const osg::FieldContainerPtr &container);

    kavoNodeEditor *m_module = nullptr;
    osg::FieldSamplerPtr m_sampler;
};

void TestEditing::initTestCase()
{
    QLocale::setDefault(QLocale::c());
    m_module = new kavoNodeEditor;
    QVERIFY(kavoTestHost::show());
    kavoTestHost::docks().show("Node Editor");
    kavoTestHost::mainWindow().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&kavoTestHost::mainWindow()));
}

void TestEditing::init()
{
    m_sampler = osg::FieldSampler::create();
    osg::addRefCP(m_sampler);
    show(m_sampler);
}

void TestEditing::cleanup()
{
    m_module->setNode(osg::NullFC);
    osg::subRefCP(m_sampler);
}

kavoFCEditorWidget &TestEditing::editor() const
{
    return *m_module->getWidget()->findChild<kavoFCEditorWidget *>();
}

QTreeWidget &TestEditing::view() const
{
    return *editor().findChild<QTreeWidget *>();
}

void TestEditing::show(const osg::FieldContainerPtr &container)
{
    editor().setFC("it", container);
    QTRY_VERIFY(view().topLevelItemCount() == 1);
}

void TestEditing::click(QWidget *widget, const QPoint &position)
{
    QWindow *window = widget->window()->windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, {}, widget->mapTo(widget->window(), position));
}

// Keys go to the window that has the focus, as the window system sends them.
void TestEditing::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
}

void TestEditing::type(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(QGuiApplication::focusWindow(), character.toLatin1());
}

// Clicks into the value column of a row. \returns the editor that opened
QWidget *TestEditing::open(const QString &title)
{
    QTreeWidgetItem *item = view().findItems(title, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    view().scrollToItem(item);
    const QRect row = view().visualItemRect(item);
    click(view().viewport(), QPoint(view().columnViewportPosition(1) + 30, row.center().y()));
    return view().itemWidget(item, 1);
}

void TestEditing::replace(const QString &title, const QString &text)
{
    QVERIFY(open(title));
    press(Qt::Key_A, Qt::ControlModifier);
    type(text);
    press(Qt::Key_Return);
}

void TestEditing::aCheckBoxIsClicked()
{
    QWidget *box = open("flag");
    QVERIFY(box);
    click(box, QPoint(8, box->height() / 2));
    QVERIFY(m_sampler->flag.getValue());
    click(box, QPoint(8, box->height() / 2));
    QVERIFY(!m_sampler->flag.getValue());
}

void TestEditing::aWholeNumberIsTyped()
{
    replace("int16", "-1234");
    QCOMPARE(int(m_sampler->int16.getValue()), -1234);
    QCOMPARE(m_sampler->changes, 1);
}

void TestEditing::anArrowKeySteps()
{
    QVERIFY(open("uint8"));
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    press(Qt::Key_Down);
    QCOMPARE(int(m_sampler->uint8.getValue()), 1);
}

void TestEditing::aRealNumberIsTyped()
{
    replace("real32", "1.25e-7");
    QCOMPARE(m_sampler->real32.getValue(), 1.25e-7f);
    QCOMPARE(m_sampler->changes, 1);
}

void TestEditing::aVectorIsTyped()
{
    replace("vector", "1, -2.5, 3e2");
    QVERIFY(m_sampler->vector.getValue() == osg::Vec3f(1, -2.5f, 300));
}

void TestEditing::aStringIsTyped()
{
    replace("text", "a \"b\" c");
    QCOMPARE(m_sampler->text.getValue(), std::string("a \"b\" c"));
}

void TestEditing::aNumberListIsTyped()
{
    replace("reals", "0.5, 1 2e3");
    QCOMPARE(int(m_sampler->reals.size()), 3);
    QCOMPARE(m_sampler->reals[2], 2000.f);
}

void TestEditing::anEnumIsChosenWithTheMouse()
{
    const osg::TextureChunkPtr chunk = osg::TextureChunk::create();
    osg::addRefCP(chunk);
    show(chunk);
    auto *box = qobject_cast<QComboBox *>(open("minFilter"));
    QVERIFY(box);
    click(box);
    QTRY_VERIFY(box->view()->isVisible());
    const QModelIndex linear = box->model()->index(box->findText("GL_LINEAR"), 0);
    click(box->view()->viewport(), box->view()->visualRect(linear).center());
    QTRY_COMPARE(chunk->getMinFilter(), GLenum(9729));
    show(m_sampler);
    osg::subRefCP(chunk);
}

void TestEditing::anEnumIsChosenWithTheKeyboard()
{
    m_sampler->minFilter.setValue(9728);
    show(m_sampler);
    QVERIFY(open("minFilter"));
    press(Qt::Key_Down);
    QCOMPARE(m_sampler->minFilter.getValue(), GLenum(9729));
    QCOMPARE(text(editor(), "minFilter"), QString("GL_LINEAR"));
}

void TestEditing::aColorIsPasted()
{
    QGuiApplication::clipboard()->setText("#00ff00");
    QWidget *picker = open("color4");
    QVERIFY(picker);
    press(Qt::Key_V, Qt::ControlModifier);
    const osg::Color4f &color = m_sampler->color4.getValue();
    QCOMPARE(color[0], 0.f);
    QCOMPARE(color[1], 1.f);
    QCOMPARE(color[3], 1.f);
    QCOMPARE(text(editor(), "color4"), QString("0.00 1.00 0.00 1.00"));
    press(Qt::Key_Escape);
    QTRY_VERIFY(!QApplication::activePopupWidget());
}

void TestEditing::leavingTheRowKeepsWhatWasTyped()
{
    QVERIFY(open("real64"));
    press(Qt::Key_A, Qt::ControlModifier);
    type("12.5");
    QCOMPARE(m_sampler->real64.getValue(), 0.);
    QVERIFY(open("flag"));
    QCOMPARE(m_sampler->real64.getValue(), 12.5);
}

void TestEditing::aNewSelectionDropsWhatWasNotFinished()
{
    QVERIFY(open("real64"));
    press(Qt::Key_A, Qt::ControlModifier);
    type("12.5");
    m_module->setNode(osg::NullFC);
    QCoreApplication::processEvents();
    QCOMPARE(m_sampler->real64.getValue(), 0.);
    QCOMPARE(m_sampler->changes, 0);
}

KAVO_TEST_MAIN(TestEditing)
#include "tst_editing.moc"
