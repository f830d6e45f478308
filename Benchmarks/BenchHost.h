#pragma once

#include <QTreeWidget>
#include <QWidget>

/// What a benchmark runs in: application object, OpenSG with writable change lists, numbers with a
/// point. As in the host, the application object outlives main().
namespace BenchHost {

/// To be called once, first thing in main().
void start(int argc, char **argv);

/// Shows a widget as a window of 420 x 800 pixels and waits until it is on the screen.
void show(QWidget &widget);

/// The tree inside a property browser.
QTreeWidget &treeOf(const QWidget &browser);

/// Memory of the process that is in RAM, in MiB.
double residentMemory();

/// Runs the event loop until nothing is left to do.
void settle();

}
