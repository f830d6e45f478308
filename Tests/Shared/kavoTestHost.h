#pragma once

#include <QMainWindow>

class QKAVODockWindowManager;

/// The host as modules see it: application object, main window and dock-window manager registered
/// with kavoController, OpenSG running with writable change lists, numbers
/// in the form of the C locale. As in the real host, all of it
/// outlives main(), and its windows are hidden when main() returns.
class kavoTestHost
{
public:
    /// Sets the host up, runs the test object and hides the windows again.
    /// \returns the exit code for main()
    template <class Test> static int run(int argc, char **argv)
    {
        start(argc, argv);
        Test test;
        return finish(execute(test, argv));
    }

    static QMainWindow &mainWindow();
    static QKAVODockWindowManager &docks();
    /// Shows the main window and waits until it is on the screen.
    static bool show();

private:
    static void start(int argc, char **argv);
    static int execute(QObject &test, char **argv);
    static int finish(int result);
};

#define KAVO_TEST_MAIN(Test)                                                                       \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        return kavoTestHost::run<Test>(argc, argv);                                                \
    }
