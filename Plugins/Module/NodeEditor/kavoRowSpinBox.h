#pragma once

#include <QKeyEvent>
#include <QWidget>

/// A spin box as editor of a row: tells of a change when the typing is done, not at every key, and
/// forgets what was typed when the user presses Escape.
template <class SpinBox> class kavoRowSpinBox : public SpinBox
{
public:
    explicit kavoRowSpinBox(QWidget *parent)
        : SpinBox(parent)
    {
        this->setKeyboardTracking(false);
    }

protected:
    // The view's delegate filters the keys of its editor and closes it at Escape, and a spin box
    // that loses the focus takes what was typed. The latest filter is the first to be asked.
    void showEvent(QShowEvent *event) override
    {
        SpinBox::showEvent(event);
        this->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress
            && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Cancel))
            this->setValue(this->value());
        return SpinBox::eventFilter(object, event);
    }
};
