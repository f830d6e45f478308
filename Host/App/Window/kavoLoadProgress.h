#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;

/// Shows the progress of loading, with a button that cancels. Hidden until report() is called.
class kavoLoadProgress : public QWidget
{
    Q_OBJECT

public:
    explicit kavoLoadProgress(QWidget *parent = nullptr);

    /// \param percent 0 to 100
    void report(int percent, const QString &what);

signals:
    void cancelRequested();

private:
    QLabel *m_what;
    QProgressBar *m_bar;
};
