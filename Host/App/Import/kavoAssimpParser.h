#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>
#include <memory>

struct kavoParsedFile;

/// Parses one scene file at a time with Assimp, on a worker thread. It uses nothing of OpenSG,
/// whose containers belong to the GUI thread. The parser's own thread receives the signals.
class kavoAssimpParser : public QObject
{
    Q_OBJECT

public:
    explicit kavoAssimpParser(QObject *parent = nullptr);

    /// Cancels and waits for the worker.
    ~kavoAssimpParser() override;

    /// Starts to parse, and cancels an unfinished job first. Each job emits either `finished` or
    /// `failed` once; a canceled job emits neither.
    void start(const QString &fileName);

    /// Cancels the current job. It emits no more signals.
    void cancel();

    /// Blocks until the worker is idle. A canceled job ends at its next progress report.
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
