#pragma once

#include <kavoColorSpace.h>
#include <kavoSDKExport.h>

#include <QWidget>

#include <array>

class QStyleOptionComboBox;
class kavoColorPopup;

/// The host's colour picker, small enough to serve as the in-place editor of a table row: a swatch
/// and the colour's hex code, which open the full picker as a popup.
///
/// A click, Space, F4 or Alt+Down opens the popup. Every change in it takes effect at once. Enter,
/// F4, Alt+Up or a click outside closes it and keeps the colour; Escape closes it and brings the
/// old colour back. Copy and Paste exchange the hex code with the clipboard.
///
/// Belongs to its parent. GUI thread only.
class KAVO_SDK_EXPORT QKAVOColorManipulator : public QWidget
{
    Q_OBJECT
public:
    /// \a name becomes the object name; it may be null.
    QKAVOColorManipulator(QWidget *parent, const char *name);

    /// Shows a colour without a signal. The components are 0 to 1; others, as of a light that is
    /// brighter than white, are kept although the swatch cannot show them, and those that are not
    /// finite count as 0.
    void setColor(float red, float green, float blue);

    /// Hue in degrees, 0 to 360 (0 for a grey), saturation and value, 0 to 1 for a colour whose
    /// components are. The fourth has no meaning. No component has been rounded.
    std::array<float, 4> getColor() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user has changed the colour. setColor() does not emit it.
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
