#pragma once

#include <QImage>
#include <QPoint>
#include <QWidget>

#include <vector>

/// Eyedropper: covers all screens with a picture of them and shows a magnifier at the pointer. A
/// click, Enter or Space picks the pixel's colour, the arrow keys move the pointer by one pixel,
/// Escape or another mouse button cancels. Deletes itself when it closes.
class kavoScreenColorPicker : public QWidget
{
    Q_OBJECT
public:
    /// Returns false if the desktop does not let programs read the screen.
    static bool isAvailable();

    explicit kavoScreenColorPicker(QWidget *parent);

    /// Takes the picture and shows the widget.
    void start();

Q_SIGNALS:
    void picked(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Shot
    {
        QRect rect; // in widget coordinates
        QImage image;
    };

    QColor colorAt(const QPoint &position) const;
    QRect magnifierRect() const;
    void paintMagnifier(QPainter *painter) const;
    void moveTo(const QPoint &position);
    void pick();

    std::vector<Shot> m_shots;
    QPoint m_position;
};
