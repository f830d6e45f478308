#pragma once

#include <kavoLog.h>

#include <QWidget>

#include <deque>

class QComboBox;
class QPlainTextEdit;

/// The Log window. Shows the lines that kavoLog has kept and every new line. The user chooses the
/// lowest level that is shown.
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
