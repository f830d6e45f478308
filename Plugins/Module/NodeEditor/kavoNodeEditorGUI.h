#pragma once

#include "ui_kavoNodeEditorGUI.h"

#include <QMainWindow>

/// The editor's window, filled by its form; the module puts the editor into the form's _frame.
class kavoNodeEditorGUIW : public QMainWindow, public Ui::kavoNodeEditorGUI
{
    Q_OBJECT

public:
    explicit kavoNodeEditorGUIW(QWidget *parent);

signals:
    /// Emitted each time the window is about to be shown. Deliberate: it hides QWidget::show(), so
    /// that a call of show() on this class announces the window and does not show it.
    void show();

protected:
    void showEvent(QShowEvent *event) override;
};
