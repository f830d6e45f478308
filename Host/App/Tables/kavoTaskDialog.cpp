#include "Tables/kavoTaskDialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

kavoTaskDialog::kavoTaskDialog(const QString &title, const QString &acceptText, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(title);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(acceptText);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(buttons);
}

void kavoTaskDialog::insert(QWidget *box)
{
    auto *boxes = static_cast<QVBoxLayout *>(layout());
    boxes->insertWidget(boxes->count() - 1, box);
}
