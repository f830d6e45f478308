#pragma once

#include <QDialog>

/// A dialog of a few boxes, one below the other, with a button that goes ahead and one that
/// cancels.
class kavoTaskDialog : public QDialog
{
    Q_OBJECT

public:
    kavoTaskDialog(const QString &title, const QString &acceptText, QWidget *parent);

protected:
    /// Adds a box above the buttons.
    template <class Box> Box *add(Box *box)
    {
        insert(box);
        return box;
    }

private:
    void insert(QWidget *box);
};
