#pragma once

#include <kavoColorSpace.h>
#include <kavoSDKExport.h>

#include <QWidget>

#include <array>

class QStyleOptionComboBox;
class kavoColorPopup;

/// The host's colour picker in the size of a table row: a swatch and the hex code of the colour. It
/// serves as in-place editor and opens the full picker as a popup.
///
/// A click, Space, F4 or Alt+Down opens the popup. Every change in the popup takes effect at once.
/// Enter, F4, Alt+Up or a click outside closes it and keeps the colour. Escape closes it and
/// restores the old colour. Copy and Paste exchange the hex code with the clipboard. GUI thread
/// only.
class KAVO_SDK_EXPORT QKAVOColorManipulator : public QWidget
{
    Q_OBJECT
public:
    /// \param name object name, may be null
    QKAVOColorManipulator(QWidget *parent, const char *name);

    /// Shows a colour without emitting a signal. Components from 0 to 1 can be displayed. Others,
    /// such as those of lights brighter than white, are kept. Components that are not finite count
    /// as 0.
    void setColor(float red, float green, float blue);

    /// Returns hue, saturation, value and an unused number, none of them rounded. The hue is in
    /// degrees from 0 to 360 and 0 for a grey. Saturation and value are 0 to 1 if the components of
    /// the colour are.
    std::array<float, 4> getColor() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Emitted when the user changes the colour, not by setColor().
    void colorChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showPopup();
    void changeColor(const kavoHsvColor &color);
    void paste();
    QString hexCode() const;
    void initStyleOption(QStyleOptionComboBox *option) const;

    kavoHsvColor m_color;
    kavoColorPopup *m_popup = nullptr;
};
