#pragma once

#include <QTreeWidget>
#include <QWidget>

/// The environment of a benchmark: an application object, OpenSG with writable change lists and the
/// locale "C" for numbers. As in the host, the application object outlives main().
namespace BenchHost {

/// Call it once, at the start of main().
void start(int argc, char **argv);

/// Shows a widget as a window of 420 x 800 pixels and waits until it is on the screen.
void show(QWidget &widget);

/// The tree widget inside a property browser.
QTreeWidget &treeOf(const QWidget &browser);

/// The resident memory of the process in MiB.
double residentMemory();

/// Processes all pending events and deferred deletions.
void settle();

}
