#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;

/// What a load is doing, how far it is, and a button that cancels it. Hides itself in between.
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
