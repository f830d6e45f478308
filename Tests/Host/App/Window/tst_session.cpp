#include "Files/kavoDocument.h"
#include "Window/kavoSession.h"
#include <kavoScenegraph.h>
#include <kavoTestHost.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class tst_Session : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void openingReplacesTheSceneAndTellsTheFiles();
    void openingDiscardsEditsWithoutAQuestion();
    void replacingAsksFirst_data();
    void replacingAsksFirst();
    void anEditMadeWhileAnotherSceneLoadsIsAskedAbout();
    void aCanceledLoadKeepsSceneAndEdits();
    void nodesAreSelectedByName();
    void closingCancelsALoadAndClosesTheScene();

private:
    bool open(const QString &file);
    void edit();
    QString rootName() const;

    QTemporaryDir m_folder;
    QString m_ship, m_tank;
    std::unique_ptr<kavoSession> m_session;
};

void tst_Session::init()
{
    m_ship = m_folder.filePath("ship.osg");
    m_tank = m_folder.filePath("tank.osg");
    for (const QString &path : { m_ship, m_tank }) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("DEF " + QFileInfo(path).baseName().toUtf8() + " Node { }");
    }
    m_session = std::make_unique<kavoSession>();
    QVERIFY(open(m_ship));
}

void tst_Session::cleanup()
{
    m_session->close();
    m_session.reset();
}

bool tst_Session::open(const QString &file)
{
    QSignalSpy opened(m_session.get(), &kavoSession::opened);
    m_session->open({ file });
    return opened.wait();
}

void tst_Session::edit()
{
    osg::setName(osg::NodePtr(kavoScenegraph::getRoot()), "boat");
    QTRY_VERIFY(m_session->document().isModified());
}

QString tst_Session::rootName() const
{
    return kavoScenegraph::getNodeName(kavoScenegraph::getRoot());
}

void tst_Session::openingReplacesTheSceneAndTellsTheFiles()
{
    QSignalSpy opened(m_session.get(), &kavoSession::opened);
    m_session->open({ m_tank });
    QVERIFY(opened.wait());
    QCOMPARE(opened[0][0].toStringList(), QStringList { m_tank });
    QCOMPARE(rootName(), QString("tank"));
    QCOMPARE(m_session->document().title(), QString("tank.osg"));
}

void tst_Session::openingDiscardsEditsWithoutAQuestion()
{
    edit();
    m_session->setConfirmation([] { return true; });
    m_session->open({ m_tank });
    QVERIFY(!m_session->document().isModified());
}

void tst_Session::replacingAsksFirst_data()
{
    QTest::addColumn<bool>("answer");
    QTest::addColumn<bool>("loads");
    QTest::newRow("yes") << true << true;
    QTest::newRow("no") << false << false;
}

void tst_Session::replacingAsksFirst()
{
    QFETCH(bool, answer);
    edit();
    m_session->setConfirmation([answer] { return answer; });
    m_session->replace({ m_tank });
    QFETCH(bool, loads);
    QCOMPARE(m_session->document().isModified(),
        !loads); // a load discards the edits
    m_session->cancelOpening();
}

void tst_Session::anEditMadeWhileAnotherSceneLoadsIsAskedAbout()
{
    bool isKnown = false;
    m_session->setConfirmation([&] {
        isKnown = m_session->document().isModified();
        return false;
    });
    QSignalSpy canceled(m_session.get(), &kavoSession::openCanceled);
    m_session->open({ m_tank });
    osg::setName(osg::NodePtr(kavoScenegraph::getRoot()), "boat");
    QVERIFY(canceled.wait());
    QVERIFY(isKnown);
    QCOMPARE(rootName(), QString("boat"));
}

void tst_Session::aCanceledLoadKeepsSceneAndEdits()
{
    edit();
    QSignalSpy canceled(m_session.get(), &kavoSession::openCanceled);
    m_session->open({ m_tank });
    m_session->cancelOpening();
    QCOMPARE(canceled.count(), 1);
    QCOMPARE(rootName(), QString("boat"));
    QVERIFY(m_session->document().isModified());
}

void tst_Session::nodesAreSelectedByName()
{
    QVERIFY(m_session->select("ship"));
    QVERIFY(kavoScenegraph::getSelectedNode() == kavoScenegraph::getRoot());
    QVERIFY(!m_session->select("tank"));
}

void tst_Session::closingCancelsALoadAndClosesTheScene()
{
    QSignalSpy canceled(m_session.get(), &kavoSession::openCanceled);
    m_session->open({ m_tank });
    m_session->close();
    QCOMPARE(canceled.count(), 1);
    QVERIFY(kavoScenegraph::getRoot() == osg::NullFC);
}

KAVO_TEST_MAIN(tst_Session)
#include "tst_session.moc"
