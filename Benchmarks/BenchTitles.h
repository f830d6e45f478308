#pragma once

#include <qtpropertymanager.h>
#include <qttreepropertybrowser.h>

/// The cheapest way we found to show rows with the component. The rows have a title and nothing
/// else. The top row enters the browser with all rows below it while the view gets no signals, and
/// it is deleted before them. The editor cannot use this order: each of its groups enters the tree
/// before it is filled.
class BenchTitles : public QtTreePropertyBrowser
{
    Q_OBJECT

public:
    void build(int rows);
    void empty();

private:
    QtGroupPropertyManager m_groups;
};
