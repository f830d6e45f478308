#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

/// Tells when a widget is painted.
class BenchPaintWatch : public QObject
{
public:
    explicit BenchPaintWatch(QObject &widget) { widget.installEventFilter(this); }

    /// Runs the event loop until the widget is painted. Returns at once if it was painted since the
    /// last call.
    void waitForPaint()
    {
        while (!m_painted)
            QCoreApplication::processEvents();
        m_painted = false;
    }

    /// Ignores all paints so far.
    void forget() { m_painted = false; }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_painted |= event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_painted = false;
};
