#include "Window/kavoMainWindow.h"
#include "Window/kavoSession.h"
#include "Window/kavoWindowPrinter.h"
#include <QKAVODockWindowManager.h>
#include <kavoTestHost.h>

#include <QAbstractItemView>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTextStream>
#include <QtTest>

// Drags from the host's views to the plug-in with the mouse of the X server.
class tst_DragAndDrop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theEditorShowsWhatIsDraggedOntoIt_data();
    void theEditorShowsWhatIsDraggedOntoIt();
    void cleanupTestCase();

private:
    void open(const QString &file);
    QString editorTitle();

    kavoMainWindow *m_window = nullptr;
};

namespace {

QPoint firstRow(const QAbstractItemView &view)
{
    const QModelIndex row = view.model()->index(0, 0);
    return view.viewport()->mapToGlobal(view.visualRect(row).center());
}

QString at(const QPoint &point)
{
    return QStringLiteral("mousemove %1 %2 sleep 0.2").arg(point.x()).arg(point.y());
}

// xdotool runs in its own process, because a drag blocks in an event loop of its own.
void drag(const QPoint &from, const QPoint &to)
{
    const QPoint nudge(15, 15);
    const QStringList actions { at(from), "mousedown 1 sleep 0.2", at(from + nudge), at(to - nudge),
        at(to), "mouseup 1 sleep 0.2" };
    QProcess mouse;
    mouse.start("xdotool", actions.join(' ').split(' '));
    QTRY_COMPARE_WITH_TIMEOUT(mouse.state(), QProcess::NotRunning, 10000);
    QCOMPARE(mouse.exitCode(), 0);
}

} // namespace

void tst_DragAndDrop::initTestCase()
{
    static auto *const window = new kavoMainWindow;
    m_window = window;
    m_window->loadPlugins({});
    m_window->resize(1200, 900);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    QVERIFY(m_window->docks().window("Node Editor"));
}

void tst_DragAndDrop::open(const QString &file)
{
    QSignalSpy opened(&m_window->session(), &kavoSession::opened);
    m_window->session().open({ QStringLiteral(KAVO_TEST_MODELS "/") + file });
    QVERIFY(opened.wait(20000));
}

// The first line of the editor, empty if it shows nothing.
QString tst_DragAndDrop::editorTitle()
{
    QString rows;
    QTextStream out(&rows);
    kavoWindowPrinter(out).print(m_window->docks().window("Node Editor"));
    return rows.section('\n', 0, 0);
}

void tst_DragAndDrop::theEditorShowsWhatIsDraggedOntoIt_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("view");
    QTest::addColumn<QString>("title");
    QTest::newRow("material") << "glTF/CesiumMilkTruck/CesiumMilkTruck.gltf"
                              << "Materials"
                              << " ChunkMaterial \\(\\d+\\)\t";
    QTest::newRow("light") << "Collada/lights.dae"
                           << "Lights"
                           << "\\S+ Node \\(\\d+\\)\t";
    QTest::newRow("camera") << "Collada/cameras.dae"
                            << "Cameras"
                            << "\\S+ Node \\(\\d+\\)\t";
}

void tst_DragAndDrop::theEditorShowsWhatIsDraggedOntoIt()
{
    QFETCH(QString, file);
    QFETCH(QString, view);
    QFETCH(QString, title);
    open(file);
    m_window->docks().show(view);
    auto *source = qobject_cast<QAbstractItemView *>(m_window->docks().window(view));
    QVERIFY(source);
    QTRY_VERIFY(source->isVisible() && source->model()->rowCount() > 0);
    QWidget *editor = m_window->docks().window("Node Editor");
    QCOMPARE(editorTitle(), QString());

    drag(firstRow(*source), editor->mapToGlobal(editor->rect().center()));
    const QRegularExpression expected(QRegularExpression::anchoredPattern(title));
    QTRY_VERIFY2(expected.match(editorTitle()).hasMatch(), qPrintable(editorTitle()));
}

void tst_DragAndDrop::cleanupTestCase()
{
    m_window->shutDown();
}

KAVO_TEST_MAIN(tst_DragAndDrop)
#include "tst_draganddrop.moc"
