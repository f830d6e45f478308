#pragma once

#include "kavoColorChannel.h"

#include <QFrame>

#include <vector>

namespace color_widgets {
class ColorLineEdit;
class ColorPreview;
class ColorWheel;
class Swatch;
} // namespace color_widgets
class QGridLayout;
class QLabel;
class QLayout;

/// The full colour picker: wheel, sliders, number fields, hex entry, comparison of old and new
/// colour, eyedropper and recent colours. Signals every change by the user. Escape restores the old
/// colour.
class kavoColorPopup : public QFrame
{
    Q_OBJECT
public:
    explicit kavoColorPopup(QWidget *parent);

    /// Shows the colour without emitting a signal and makes it the old colour.
    void setColor(const kavoHsvColor &color);

    /// Opens below the rectangle (global coordinates), or above it if there is no space below.
    void showAt(const QRect &anchor);

Q_SIGNALS:
    void colorChanged(const kavoHsvColor &color);
    void closed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QLayout *createLeftColumn();
    QLayout *createComparison();
    color_widgets::ColorPreview *createPreview(const QString &name, const QString &toolTip);
    QLayout *createForm();
    void createHexEntry();
    QWidget *createEyedropper();
    void createChannel(const kavoColorChannel::Part &part, QGridLayout *grid);
    QLayout *createRecentColors();
    void showRecentColors();
    void change(const kavoHsvColor &color, const QObject *source);
    void refresh(const QObject *source);
    void pickFromScreen();
    void cancel();

    kavoHsvColor m_color;
    kavoHsvColor m_oldColor;
    color_widgets::ColorWheel *m_wheel = nullptr;
    color_widgets::ColorPreview *m_old = nullptr;
    color_widgets::ColorPreview *m_new = nullptr;
    color_widgets::ColorLineEdit *m_hex = nullptr;
    color_widgets::Swatch *m_recent = nullptr;
    QLabel *m_recentLabel = nullptr;
    std::vector<kavoColorChannel *> m_channels;
};
