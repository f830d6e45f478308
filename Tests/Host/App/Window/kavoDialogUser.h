#pragma once

#include <QApplication>
#include <QTimer>

#include <functional>

/// What opens a modal dialog returns when it closes, so what the user does in it is arranged
/// beforehand: it is done once, as soon as a dialog is open, unless this has gone by then.
class kavoDialogUser
{
public:
    explicit kavoDialogUser(const std::function<void(QWidget &dialog)> &act)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, act] {
            if (QWidget *dialog = QApplication::activeModalWidget()) {
                m_timer.stop();
                act(*dialog);
            }
        });
        m_timer.start(10);
    }

private:
    QTimer m_timer;
};
