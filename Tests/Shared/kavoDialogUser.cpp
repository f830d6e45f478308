#include "kavoDialogUser.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

kavoDialogUser::kavoDialogUser()
{
    QObject::connect(&m_timer, &QTimer::timeout, [this] { answerDialog(); });
    m_timer.setSingleShot(true);
    m_timer.setInterval(10);
}

void kavoDialogUser::willDo(const Answer &answer)
{
    m_answers.append(answer);
    m_timer.start();
}

void kavoDialogUser::willPress(QMessageBox::StandardButton button)
{
    willDo([this, button](QDialog &dialog) {
        auto *box = qobject_cast<QMessageBox *>(&dialog);
        QVERIFY2(box && box->button(button), "the dialog has no such button");
        m_questions.append(box->text());
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
}

void kavoDialogUser::willChooseFile(const QString &file)
{
    willDo([file](QDialog &dialog) {
        auto *name = dialog.findChild<QLineEdit *>();
        QVERIFY2(name, "the dialog has no line for a name");
        name->setText(file);
        QTest::keyClick(name, Qt::Key_Return);
    });
}

void kavoDialogUser::answerDialog()
{
    if (m_answers.isEmpty())
        return;
    // Started again before the answer, because an answer may open another dialog. A repeating timer
    // would not fire in the event loop of that dialog.
    m_timer.start();
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || m_answered.contains(dialog))
        return;
    m_answered.append(dialog);
    m_answers.takeFirst()(*dialog);
}
