#include "kavoTestLoad.h"

#include "Files/kavoBackgroundLoader.h"
#include "Import/kavoIncrementalBuilder.h"
#include <kavoTestHost.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

using namespace kavoTestLoad;

namespace {

const QString truck = QStringLiteral("glTF/CesiumMilkTruck/CesiumMilkTruck.gltf");
const QString house = QStringLiteral("IFC/AC14-FZK-Haus.ifc");
const QString lights = QStringLiteral("Collada/lights.dae");

/// Models whose texture takes about as long as a slice.
QStringList tenTrucks()
{
    return QVector<QString>(10, model(truck)).toList();
}

/// Waits until the worker has ended the canceled job.
/// \returns true if no scene is being built
bool isAtRest(kavoBackgroundLoader &loader)
{
    loader.shutDown();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return !loader.findChild<kavoIncrementalBuilder *>();
}

/// A pipe that blocks its reader for a moment and then is empty.
class SlowPipe
{
public:
    explicit SlowPipe(const std::string &pipe)
        : m_writer([this, pipe] { release(pipe); })
    {
    }

    ~SlowPipe()
    {
        m_isOver = true;
        m_writer.join();
    }

    bool isReleased() const { return m_isReleased; }

private:
    void release(const std::string &pipe)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        m_isReleased = true;
        while (!m_isOver) {
            ::close(::open(pipe.c_str(), O_WRONLY | O_NONBLOCK));
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

    std::atomic_bool m_isReleased { false };
    std::atomic_bool m_isOver { false };
    std::thread m_writer;
};

} // namespace

// Loads that are canceled before the scene is complete.
class tst_CanceledLoad : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { show(osg::NullFC); }

    void cancelingEndsTheLoadAtOnceAndForGood()
    {
        kavoBackgroundLoader loader;
        QSignalSpy progress(&loader, &kavoBackgroundLoader::progress);
        QSignalSpy canceled(&loader, &kavoBackgroundLoader::canceled);
        QSignalSpy failed(&loader, &kavoBackgroundLoader::failed);
        QSignalSpy loaded(&loader, &kavoBackgroundLoader::loaded);
        bool endedAtOnce = false;
        connect(&loader, &kavoBackgroundLoader::progress, [&] {
            if (progress.count() == 2) { // the worker is parsing
                loader.cancel();
                endedAtOnce = canceled.count() == 1 && !loader.isLoading();
            }
        });
        loader.load({ model(house) });
        QTRY_COMPARE(canceled.count(), 1);
        QVERIFY(endedAtOnce);
        progress.clear();
        QVERIFY(isAtRest(loader));
        QCOMPARE(progress.count() + loaded.count() + failed.count(), 0);
    }

    void shuttingDownWaitsForTheWorker()
    {
        const QTemporaryDir folder;
        const std::string pipe = folder.filePath("pipe.obj").toStdString();
        QCOMPARE(mkfifo(pipe.c_str(), 0600), 0);
        const SlowPipe writer(pipe);
        kavoBackgroundLoader loader;
        loader.load({ QString::fromStdString(pipe) });
        loader.shutDown();
        QVERIFY(writer.isReleased());
    }

    void aSceneUnderConstructionCanBeCanceled()
    {
        kavoBackgroundLoader loader;
        QSignalSpy canceled(&loader, &kavoBackgroundLoader::canceled);
        QSignalSpy loaded(&loader, &kavoBackgroundLoader::loaded);
        connect(&loader, &kavoBackgroundLoader::progress, [&](int percent) {
            if (percent > 75)
                loader.cancel();
        });
        loader.load(tenTrucks());
        QTRY_COMPARE_WITH_TIMEOUT(canceled.count(), 1, 20000);
        QVERIFY(isAtRest(loader));
        QCOMPARE(loaded.count(), 0);
    }

    void nothingIsToldOfACanceledSceneWhileAReceiverWaits()
    {
        kavoBackgroundLoader loader;
        QSignalSpy progress(&loader, &kavoBackgroundLoader::progress);
        QSignalSpy canceled(&loader, &kavoBackgroundLoader::canceled);
        connect(&loader, &kavoBackgroundLoader::progress, [&](int percent) {
            if (percent > 75)
                QTimer::singleShot(0, &loader, &kavoBackgroundLoader::cancel); // between two slices
        });
        int toldBefore = 0, toldAfter = 0;
        connect(&loader, &kavoBackgroundLoader::canceled, [&] {
            toldBefore = progress.count();
            for (int round = 0; round < 20; ++round) // one slice each round
                QCoreApplication::processEvents();
            toldAfter = progress.count();
        });
        loader.load(tenTrucks());
        QTRY_COMPARE_WITH_TIMEOUT(canceled.count(), 1, 20000);
        QCOMPARE(toldAfter, toldBefore);
    }

    void loadingAgainCancelsTheLoadBefore()
    {
        kavoBackgroundLoader loader;
        QSignalSpy canceled(&loader, &kavoBackgroundLoader::canceled);
        QSignalSpy loaded(&loader, &kavoBackgroundLoader::loaded);
        loader.load({ model(house) });
        loader.load({ model(truck) });
        QTRY_COMPARE(loaded.count(), 1);
        QCOMPARE(canceled.count(), 1);
        QVERIFY(isAtRest(loader));
        QCOMPARE(loaded.count(), 1);
    }

    void aLoadCanceledByItsConfirmationIsOver()
    {
        kavoBackgroundLoader loader;
        QSignalSpy canceled(&loader, &kavoBackgroundLoader::canceled);
        QSignalSpy loaded(&loader, &kavoBackgroundLoader::loaded);
        loader.setConfirmation([&] {
            loader.cancel();
            return true;
        });
        loader.load({ model(lights) });
        QTRY_VERIFY(!loader.isLoading());
        QCOMPARE(canceled.count(), 1);
        QCOMPARE(loaded.count(), 0);
    }

    void aLoadReplacedByItsConfirmationIsOver()
    {
        kavoBackgroundLoader loader;
        connect(&loader, &kavoBackgroundLoader::loaded, &kavoTestLoad::show);
        bool isAsked = false;
        loader.setConfirmation([&] {
            if (!std::exchange(isAsked, true))
                loader.load({ model(truck) });
            return true;
        });
        loader.load({ model(lights) });
        QTRY_VERIFY(!loader.isLoading());
        QVERIFY(find("Geometry-mesh002Node") != osg::NullFC);
        QVERIFY(find("Lamp") == osg::NullFC);
    }
};

KAVO_TEST_MAIN(tst_CanceledLoad)
#include "tst_canceledload.moc"
