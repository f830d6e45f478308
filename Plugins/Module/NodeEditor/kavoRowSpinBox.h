#pragma once

#include <QKeyEvent>
#include <QWidget>

/// Spin box as in-place editor of a row. Signals a change when typing ends, not at every key, and
/// discards the typed text when the user presses Escape.
template <class SpinBox> class kavoRowSpinBox : public SpinBox
{
public:
    explicit kavoRowSpinBox(QWidget *parent)
        : SpinBox(parent)
    {
        this->setKeyboardTracking(false);
    }

protected:
    // At Escape the view's delegate closes the editor, and a spin box that loses the focus takes
    // the typed text. The event filter that was installed last runs first.
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
