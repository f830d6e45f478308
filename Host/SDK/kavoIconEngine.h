#pragma once

#include <QIconEngine>
#include <QString>

/// Paints a one-colour SVG file in the text colour of the application's palette.
class kavoIconEngine : public QIconEngine
{
public:
    explicit kavoIconEngine(const QString &file);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;

private:
    QString m_file;
};
