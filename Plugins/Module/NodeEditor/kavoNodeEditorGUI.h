#pragma once

#include "ui_kavoNodeEditorGUI.h"

#include <QMainWindow>

/// The editor's window, filled by its form. The module puts the editor into the form's _frame.
class kavoNodeEditorGUIW : public QMainWindow, public Ui::kavoNodeEditorGUI
{
    Q_OBJECT

public:
    explicit kavoNodeEditorGUIW(QWidget *parent);

signals:
    /// Emitted each time before the window is shown. Deliberate: it hides QWidget::show(), so a
    /// call of show() through this class emits the signal and does not show the window.
    void show();

protected:
    void showEvent(QShowEvent *event) override;
};
