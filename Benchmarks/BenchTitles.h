#pragma once

#include <qtpropertymanager.h>
#include <qttreepropertybrowser.h>

/// The cheapest way we found to show rows with the component: they have a title and nothing else,
/// the view hears nothing of them one by one, they enter the browser all at once, and the row
/// above them goes first, so that they need not be taken out of it. Not an order that the editor
/// can take: each of its groups is in the tree, closed, before it is filled.
class BenchTitles : public QtTreePropertyBrowser
{
    Q_OBJECT

public:
    void build(int rows);
    void empty();

private:
    QtGroupPropertyManager m_groups;
};
