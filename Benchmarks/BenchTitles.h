#pragma once

#include <qtpropertymanager.h>
#include <qttreepropertybrowser.h>

/// The cheapest rows that the component can show: they have a title and nothing else, and neither
/// the view nor the order in which they go costs more than it must. What any editor that is made
/// with the component costs at least.
class BenchTitles : public QtTreePropertyBrowser
{
    Q_OBJECT

public:
    void build(int rows);
    void empty();

private:
    QtGroupPropertyManager m_groups;
};
