#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>
#include <memory>

struct kavoParsedFile;

/// Parses one scene file at a time on a worker thread. It knows nothing of OpenSG, whose containers
/// belong to the GUI thread. Signals arrive on the thread that owns the importer.
class kavoAssimpParser : public QObject
{
    Q_OBJECT

public:
    explicit kavoAssimpParser(QObject *parent = nullptr);

    /// Waits until the worker has noticed that nobody wants its result any more.
    ~kavoAssimpParser() override;

    /// Begins to parse; an unfinished job is canceled first. Ends in exactly one of `finished`
    /// and `failed`, unless it is canceled.
    void start(const QString &fileName);

    /// Nothing more is signaled of the current job.
    void cancel();

    /// Waits until the worker is at rest, after cancel() as soon as it notices.
    void wait() { m_workers.waitForDone(); }

signals:
    void progress(int percent);
    void finished(const std::shared_ptr<kavoParsedFile> &scene);
    void failed(const QString &fileName, const QString &reason);

private:
    struct Job;

    void run(const std::shared_ptr<Job> &job);
    void parse(Job &job);
    void readTextures(Job &job);
    void conclude(const std::shared_ptr<Job> &job);

    std::shared_ptr<Job> m_job;
    QThreadPool m_workers;
};
