#include "OSGThrowingMark.h"

#include "Files/kavoDocument.h"
#include "Scene/kavoOpenScene.h"
#include "Window/kavoMainWindow.h"
#include "Window/kavoSession.h"
#include <QKAVODockWindowManager.h>
#include <kavoDialogUser.h>
#include <kavoScenegraph.h>
#include <kavoTestHost.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QDropEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

const QStringList question { "'ship.osg' has changes that are not saved." };

} // namespace

// Saves with the keys and dialogs of the main window.
class tst_SaveActions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void theTitleMarksUnsavedChanges();
    void lookingAtAModelIsNoChange();
    void ctrlSSavesAnOpenedSceneFile();
    void ctrlSAsksForAnotherFileIfNotAllWasRead();
    void saveAsAsksForTheFileAndAddsTheSuffix();
    void anotherSceneWaitsUntilTheSaveDialogIsGone();
    void quittingWithoutChangesAsksNothing();
    void quittingAsksAboutUnsavedChanges_data();
    void quittingAsksAboutUnsavedChanges();
    void openingAnotherSceneAsksToo();
    void editsMadeWhileAnotherSceneLoadsAreAskedAbout_data();
    void editsMadeWhileAnotherSceneLoadsAreAskedAbout();
    void editsMadeAfterDiscardingAreAskedAbout();
    void aCanceledLoadKeepsDiscardedEdits();
    void aSaveThatFailsIsShownAndKeepsTheWindow();
    void aFieldTypeThatThrowsFailsTheSave_data();
    void aFieldTypeThatThrowsFailsTheSave();
    void cleanupTestCase();

private:
    void edit();
    void drainChanges();
    void writeScene(const QString &file, const QByteArray &rootName) const;
    QByteArray saved() const;
    QString takeMessage() const;
    void drop(const QString &file);

    kavoMainWindow *m_window = nullptr;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<kavoDialogUser> m_user;
    QString m_file;
};

void tst_SaveActions::initTestCase()
{
    static auto *const window = new kavoMainWindow;
    m_window = window;
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

void tst_SaveActions::init()
{
    m_user = std::make_unique<kavoDialogUser>();
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath("ship.osg");
    writeScene(m_file, "Ship");
    QSignalSpy opened(&m_window->session(), &kavoSession::opened);
    m_window->session().open({ m_file });
    QVERIFY(opened.wait());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void tst_SaveActions::edit()
{
    const osg::NodePtr root = kavoScenegraph::getRoot();
    osg::setName(root, "Boat");
    QTRY_VERIFY(m_window->isWindowModified());
}

void tst_SaveActions::drainChanges()
{
    QCoreApplication::processEvents();
    m_window->session().scene().drainChanges();
}

void tst_SaveActions::writeScene(const QString &file, const QByteArray &rootName) const
{
    QFile scene(file);
    QVERIFY(scene.open(QIODevice::WriteOnly));
    scene.write("DEF " + rootName + " Node { }");
}

QByteArray tst_SaveActions::saved() const
{
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString tst_SaveActions::takeMessage() const
{
    const std::unique_ptr<QMessageBox> box(m_window->findChild<QMessageBox *>());
    return box ? box->text() : QString();
}

void tst_SaveActions::drop(const QString &file)
{
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(file) });
    QDragEnterEvent enter({ 5, 5 }, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &drop);
}

void tst_SaveActions::theTitleMarksUnsavedChanges()
{
    drainChanges();
    QVERIFY(!m_window->isWindowModified());
    QCOMPARE(m_window->windowTitle(), QStringLiteral("ship.osg[*]"));
    edit();
}

// Views compute pictures, volumes and render states, which are not edits.
void tst_SaveActions::lookingAtAModelIsNoChange()
{
    QSignalSpy opened(&m_window->session(), &kavoSession::opened);
    m_window->session().open({ KAVO_TEST_MODELS "/glTF/BoxTextured-glTF/BoxTextured.gltf" });
    QVERIFY(opened.wait(20000));
    for (const QString &key : m_window->docks().keys()) {
        m_window->docks().show(key);
        m_window->docks().window(key)->grab();
        drainChanges();
    }
    QVERIFY(m_window->session().select("Geometry-mesh002Node"));
    drainChanges();
    QVERIFY(!m_window->isWindowModified());
}

void tst_SaveActions::ctrlSSavesAnOpenedSceneFile()
{
    edit();
    QTest::keyClick(m_window, Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(saved().contains("name \"Boat\""));
}

void tst_SaveActions::ctrlSAsksForAnotherFileIfNotAllWasRead()
{
    writeScene(m_file, "Ship Oar { } DEF Boat");
    QSignalSpy opened(&m_window->session(), &kavoSession::opened);
    m_window->session().open({ m_file });
    QVERIFY(opened.wait());
    const QByteArray before = saved();
    m_user->willChooseFile(m_folder->filePath("copy"));
    QTest::keyClick(m_window, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_window->session().document().file(), m_folder->filePath("copy.osg"));
    QCOMPARE(saved(), before);
}

void tst_SaveActions::saveAsAsksForTheFileAndAddsTheSuffix()
{
    edit();
    m_user->willChooseFile(m_folder->filePath("copy"));
    QTest::keyClick(m_window, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_window->session().document().file(), m_folder->filePath("copy.osg"));
    QVERIFY(QFile::exists(m_folder->filePath("copy.osg")));
    QVERIFY(saved().contains("DEF Ship"));
}

void tst_SaveActions::anotherSceneWaitsUntilTheSaveDialogIsGone()
{
    const QString tank = m_folder->filePath("tank.osg");
    writeScene(tank, "Tank");
    QSignalSpy opened(&m_window->session(), &kavoSession::opened);
    m_window->session().open({ tank });
    m_user->willChooseFile(m_file = m_folder->filePath("copy.osg"));
    QTest::keyClick(m_window, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(saved().contains("Ship"));
    QVERIFY(opened.count() == 1 || opened.wait());
    QCOMPARE(m_window->session().document().file(), tank);
}

void tst_SaveActions::quittingWithoutChangesAsksNothing()
{
    drainChanges();
    QVERIFY(m_window->close());
}

void tst_SaveActions::quittingAsksAboutUnsavedChanges_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<bool>("saves");
    QTest::newRow("save") << int(QMessageBox::Save) << true << true;
    QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
}

void tst_SaveActions::quittingAsksAboutUnsavedChanges()
{
    QFETCH(int, button);
    QFETCH(bool, saves);
    edit();
    m_user->willPress(QMessageBox::StandardButton(button));
    QTEST(m_window->close(), "closes");
    QCOMPARE(saved().contains("Boat"), saves);
}

void tst_SaveActions::openingAnotherSceneAsksToo()
{
    edit();
    m_user->willPress(QMessageBox::Cancel);
    drop(m_file);
    QCOMPARE(m_user->questions(), question);
    QVERIFY(m_window->isWindowModified());
}

void tst_SaveActions::editsMadeWhileAnotherSceneLoadsAreAskedAbout_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("opens");
    QTest::newRow("discard") << int(QMessageBox::Discard) << true;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false;
}

void tst_SaveActions::editsMadeWhileAnotherSceneLoadsAreAskedAbout()
{
    QFETCH(int, button);
    const osg::NodePtr before = kavoScenegraph::getRoot();
    QSignalSpy opened(&m_window->session(), &kavoSession::opened);
    QSignalSpy canceled(&m_window->session(), &kavoSession::openCanceled);
    drop(m_file);
    osg::setName(before, "Boat");
    m_user->willPress(QMessageBox::StandardButton(button));
    QTRY_COMPARE(opened.count() + canceled.count(), 1);
    QCOMPARE(m_user->questions(), question);
    QTEST(opened.count() == 1, "opens");
    QCOMPARE(kavoScenegraph::getRoot() == before, canceled.count() == 1);
}

void tst_SaveActions::editsMadeAfterDiscardingAreAskedAbout()
{
    edit();
    QSignalSpy canceled(&m_window->session(), &kavoSession::openCanceled);
    m_user->willPress(QMessageBox::Discard);
    drop(m_file);
    osg::setName(kavoScenegraph::getRoot(), "Yacht");
    m_user->willPress(QMessageBox::Cancel);
    QTRY_COMPARE(canceled.count(), 1);
    QCOMPARE(m_user->questions(), question + question);
    QVERIFY(m_window->isWindowModified());
}

void tst_SaveActions::aCanceledLoadKeepsDiscardedEdits()
{
    edit();
    m_user->willPress(QMessageBox::Discard);
    drop(m_file);
    QVERIFY(!m_window->isWindowModified());
    m_window->findChild<QAbstractButton *>("cancel")->click();
    QVERIFY(m_window->isWindowModified());
}

void tst_SaveActions::aSaveThatFailsIsShownAndKeepsTheWindow()
{
    edit();
    QVERIFY(m_folder->remove());
    m_user->willPress(QMessageBox::Save);
    QVERIFY(!m_window->close());
    QVERIFY(m_window->isWindowModified());
    QVERIFY(takeMessage().contains(m_file));
}

void tst_SaveActions::aFieldTypeThatThrowsFailsTheSave_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::newRow("an exception") << ""
                                  << "no writing";
    QTest::newRow("a number") << "1 when written"
                              << "unknown exception";
}

void tst_SaveActions::aFieldTypeThatThrowsFailsTheSave()
{
    QFETCH(QString, text);
    const QByteArray before = saved();
    const osg::ThrowingMarkPtr mark = osg::ThrowingMark::create();
    mark->getSFText()->setValue(text.toStdString());
    kavoScenegraph::getRoot()->addAttachment(mark);
    QTest::keyClick(m_window, Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(saved(), before);
    QTEST(takeMessage(), "message");
}

void tst_SaveActions::cleanupTestCase()
{
    m_window->shutDown();
}

KAVO_TEST_MAIN(tst_SaveActions)
#include "tst_saveactions.moc"
