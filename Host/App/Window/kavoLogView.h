#pragma once

#include <kavoLog.h>

#include <QWidget>

#include <deque>

class QComboBox;
class QPlainTextEdit;

/// The Log window: the lines of kavoLog, the kept ones first and then each as it comes. The user
/// picks from which level on they show.
class kavoLogView : public QWidget
{
    Q_OBJECT

public:
    explicit kavoLogView(QWidget *parent = nullptr);
    ~kavoLogView() override;

private:
    void add(const kavoLog::Entry &entry);
    void showEntry(const kavoLog::Entry &entry);
    void showEntries();
    void clear();

    std::deque<kavoLog::Entry> m_entries;
    QComboBox *m_level;
    QPlainTextEdit *m_text;
    int m_observer;
};
