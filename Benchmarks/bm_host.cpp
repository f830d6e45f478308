// Measures the whole host with the editor plug-in: loading scenes, and selecting and scrolling in
// large ones.

#include "BenchClock.h"
#include "BenchHost.h"
#include "BenchPaintWatch.h"
#include "BenchScenes.h"
#include "BenchTable.h"

#include "Window/kavoMainWindow.h"
#include "Window/kavoSession.h"
#include <QKAVODockWindowManager.h>
#include <kavoController.h>
#include <kavoMessage.h>
#include <kavoMessageIds.h>
#include <kavoScenegraph.h>

#include <OpenSG/OSGNode.h>

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTreeView>

#include <cstdlib>
#include <random>

namespace {

// Ends the program, so that nothing is reported that did not happen.
void expect(bool isTrue, const char *what)
{
    if (!isTrue)
        qFatal("Not measured: %s", what);
}

QWidget &window(kavoMainWindow &host, const char *key)
{
    QWidget *window = host.docks().window(key);
    expect(window, key);
    return *window;
}

void showScene(const kavoNodePtr &root)
{
    kavoScenegraph::setRoot(root);
    kavoMessage loaded(kavoMessageIds::sceneLoaded);
    kavoController::sendMessage(loaded);
}

void waitUntilOpen(const bool &isOpen)
{
    constexpr int limit = 60000;
    QElapsedTimer timer;
    timer.start();
    while (!isOpen) {
        expect(timer.elapsed() < limit, "the model does not open");
        QCoreApplication::processEvents();
    }
}

void openModel(kavoMainWindow &host)
{
    BenchPaintWatch frames(window(host, "Viewport"));
    bool isOpen = false;
    QObject::connect(&host.session(), &kavoSession::opened, &frames, [&] {
        isOpen = true;
        frames.forget();
    });
    QObject::connect(&host.session(), &kavoSession::openFailed, &frames,
        [](const QString &message) { expect(false, qPrintable(message)); });
    const double before = BenchHost::residentMemory();
    const double time = BenchClock::wallTime([&] {
        host.session().open({ KAVO_BENCH_MODEL });
        waitUntilOpen(isOpen);
        frames.waitForPaint();
    });
    BenchTable::figure("AC14-FZK-Haus.ifc: from opening to the first frame", time, "ms");
    BenchTable::figure("AC14-FZK-Haus.ifc: memory", BenchHost::residentMemory() - before, "MiB");
}

void openLargeScene(kavoMainWindow &host)
{
    BenchPaintWatch frames(window(host, "Viewport"));
    const double before = BenchHost::residentMemory();
    kavoNodePtr root;
    const double making = BenchClock::wallTime([&] { root = BenchScenes::makeTree(200000, true); });
    BenchTable::figure("200,000 nodes, half of them boxes: make", making, "ms");
    BenchTable::figure("200,000 nodes: memory", BenchHost::residentMemory() - before, "MiB");
    BenchHost::settle();
    frames.forget();
    const double showing = BenchClock::wallTime([&] {
        showScene(root);
        frames.waitForPaint();
    });
    BenchTable::figure("200,000 nodes: from the open scene to the first frame", showing, "ms");
    BenchTable::figure(
        "200,000 nodes: memory when shown", BenchHost::residentMemory() - before, "MiB");
}

// The window's title ends with the id of the shown node.
void expectEditorShows(kavoMainWindow &host, const osg::NodePtr &node)
{
    expect(node != osg::NullFC, "nothing is selected");
    const QString id = QStringLiteral("(%1)").arg(node.getFieldContainerId());
    expect(window(host, "Node Editor").windowTitle().endsWith(id),
        "the Node Editor does not show the selected node");
}

/// A random node `levels` below the root, or the leaf above if the branch ends earlier.
osg::NodePtr anyNode(std::mt19937 &random, int levels)
{
    osg::NodePtr node = kavoScenegraph::getRoot();
    for (int depth = 0; depth < levels && node->getNChildren() > 0; ++depth)
        node = node->getChild(osg::UInt32(random() % node->getNChildren()));
    return node;
}

void select(const osg::NodePtr &node)
{
    kavoScenegraph::setSelectedNode(node);
    BenchHost::settle();
}

void selecting(kavoMainWindow &host)
{
    std::mt19937 random(1);
    const std::vector<double> times = BenchClock::timesOf(201, [&] {
        const osg::NodePtr node = anyNode(random, 2 + int(random() % 2));
        const double time = BenchClock::wallTime([&] { select(node); });
        expectEditorShows(host, node);
        return time;
    });
    const double one = BenchClock::median(times);
    const double many = BenchClock::medianOf(11, [&] {
        return BenchClock::wallTime([&] {
            for (int i = 0; i < 1000; ++i)
                kavoScenegraph::setSelectedNode(anyNode(random, 3));
            BenchHost::settle();
        });
    });
    BenchTable::figure("100,000 nodes: select one, all windows updated, median", one, "ms");
    BenchTable::figure("100,000 nodes: select one, all windows updated, 95th percentile",
        BenchClock::quantile(times, 0.95), "ms");
    BenchTable::atMost(
        "100,000 nodes: 1,000 selections in one round, versus one", many, one, 2, "ms");
}

void scrolling(kavoMainWindow &host)
{
    auto &tree = *window(host, "Scene").findChild<QTreeView *>();
    tree.expandToDepth(1);
    BenchHost::settle();
    BenchPaintWatch frames(*tree.viewport());
    QScrollBar &bar = *tree.verticalScrollBar();
    std::mt19937 random(1);
    const double time = BenchClock::medianOf(101, [&] {
        frames.forget();
        return BenchClock::wallTime([&] {
            const int step = 1 + int(random() % unsigned(bar.maximum())); // never to the same place
            bar.setValue((bar.value() + step) % (bar.maximum() + 1));
            frames.waitForPaint();
        });
    });
    BenchTable::figure("100,000 nodes: scroll the Scene window, one frame", time, "ms");
}

void sendMouse(QWidget &view, QEvent::Type type, const QPoint &at)
{
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, at, view.mapToGlobal(at), isMove ? Qt::NoButton : Qt::LeftButton,
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &event);
    BenchHost::settle();
}

/// Moves the mouse down the visible rows with its button pressed, which selects each row in turn.
void dragging(kavoMainWindow &host)
{
    auto &tree = *window(host, "Scene").findChild<QTreeView *>();
    host.docks().show("Scene");
    tree.scrollToTop();
    BenchHost::settle();
    const QModelIndex top = tree.indexAt(QPoint(0, 0));
    const int height = tree.visualRect(top).height(), rows = tree.viewport()->height() / height;
    const auto at = [&](int row) { return QPoint(150, row * height + height / 2); };
    sendMouse(*tree.viewport(), QEvent::MouseButtonPress, at(0));
    int row = 0;
    const std::vector<double> times = BenchClock::timesOf(201, [&] {
        const osg::NodePtr before = kavoScenegraph::getSelectedNode();
        row = row % (rows - 1) + 1;
        const double time = BenchClock::wallTime(
            [&] { sendMouse(*tree.viewport(), QEvent::MouseMove, at(row)); });
        const osg::NodePtr after = kavoScenegraph::getSelectedNode();
        expect(after != before, "the drag did not move the selection");
        expectEditorShows(host, after);
        return time;
    });
    sendMouse(*tree.viewport(), QEvent::MouseButtonRelease, at(row));
    BenchTable::figure(
        "100,000 nodes: drag the mouse to the next row, median", BenchClock::median(times), "ms");
    BenchTable::figure("100,000 nodes: drag the mouse to the next row, 95th percentile",
        BenchClock::quantile(times, 0.95), "ms");
}

void openLevels(kavoMainWindow &host)
{
    auto &tree = *window(host, "Scene").findChild<QTreeView *>();
    const double time = BenchClock::wallTime([&] {
        tree.expandAll();
        BenchHost::settle();
    });
    BenchTable::figure("100,000 nodes: expand all rows of the Scene window", time, "ms");
}

}

int main(int argc, char **argv)
{
    BenchHost::start(argc, argv);
    auto *host = new kavoMainWindow;
    host->loadPlugins({});
    BenchHost::show(*host);
    host->resize(1280, 800);
    openModel(*host);
    openLargeScene(*host);
    showScene(BenchScenes::makeTree(100000, false));
    BenchHost::settle();
    host->docks().show("Node Editor");
    selecting(*host);
    scrolling(*host);
    dragging(*host);
    openLevels(*host);
    std::quick_exit(0); // skips the lines that modules print at their end
}
