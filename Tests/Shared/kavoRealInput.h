#pragma once

#include <QProcess>
#include <QtTest>

/// Mouse and keyboard of the X server itself, so that a test goes through everything that a user's
/// input goes through: the server's grabs, the focus and the event loop.
class kavoRealInput
{
public:
    static void moveTo(const QPoint &global)
    {
        run({ "mousemove", QString::number(global.x()), QString::number(global.y()) });
    }

    static void click(const QPoint &global)
    {
        moveTo(global);
        run({ "click", "1" });
    }

    static void click(const QWidget *widget)
    {
        click(widget->mapToGlobal(widget->rect().center()));
    }

    /// Keys as xdotool names them: "Return", "alt+Down".
    static void press(const QStringList &keys) { run(QStringList("key") + keys); }

    static void type(const QString &text) { run({ "type", "--", text }); }

private:
    static void run(const QStringList &arguments)
    {
        if (QProcess::execute("xdotool", arguments) != 0)
            QFAIL("xdotool failed");
        QTest::qWait(100);
    }
};
