#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Answers modal dialogs in tests. Code that opens a modal dialog returns when the dialog closes,
/// so a test queues the answers beforehand. Each dialog takes the next answer from the queue.
class kavoDialogUser
{
public:
    using Answer = std::function<void(QDialog &dialog)>;

    kavoDialogUser();

    void willDo(const Answer &answer);
    /// Presses a button of a message box.
    void willPress(QMessageBox::StandardButton button);
    /// Enters the name in a file dialog and accepts it.
    void willChooseFile(const QString &file);

    /// Whether all queued answers have been given.
    bool isDone() const { return m_answers.isEmpty(); }
    /// The texts of the message boxes that willPress() answered.
    QStringList questions() const { return m_questions; }

private:
    void answerDialog();

    QTimer m_timer;
    QList<Answer> m_answers;
    QList<QPointer<QDialog>> m_answered;
    QStringList m_questions;
};
