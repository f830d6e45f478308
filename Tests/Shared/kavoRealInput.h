#pragma once

#include <QProcess>
#include <QtTest>

/// Mouse and keyboard input through the X server, so that a test includes everything that a user's
/// input passes: the server's grabs, the focus and the event loop.
namespace kavoRealInput {

inline void run(const QStringList &arguments)
{
    if (QProcess::execute("xdotool", arguments) != 0)
        QFAIL("xdotool failed");
    QTest::qWait(100);
}

inline void moveTo(const QPoint &global)
{
    run({ "mousemove", QString::number(global.x()), QString::number(global.y()) });
}

inline void click(const QPoint &global)
{
    moveTo(global);
    run({ "click", "1" });
}

inline void click(const QWidget *widget)
{
    click(widget->mapToGlobal(widget->rect().center()));
}

/// Presses keys by their names in xdotool, such as "Return" and "alt+Down".
inline void press(const QStringList &keys)
{
    run(QStringList("key") + keys);
}

inline void type(const QString &text)
{
    run({ "type", "--", text });
}

} // namespace kavoRealInput
