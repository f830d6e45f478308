#pragma once

#include <QKAVOColorManipulator.h>

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// Base class for tests of the colour picker. Shows a picker of #339966 in a window and uses
/// settings of its own.
class kavoPickerFixture
{
protected:
    using Components = QVector<float>;

    void setUp()
    {
        QCoreApplication::setOrganizationName("kavotest");
        QCoreApplication::setApplicationName("colormanipulator");
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
        QSettings().clear();
        m_window = std::make_unique<QWidget>();
        m_picker = new QKAVOColorManipulator(m_window.get(), "picker");
        m_picker->resize(200, 20);
        m_window->show();
        m_picker->setColor(0.2f, 0.6f, 0.4f);
    }

    void tearDown() { m_window.reset(); }

    template <class Child> Child *child(const char *name) const
    {
        return m_picker->findChild<Child *>(name);
    }
    QWidget *popup() const { return child<QWidget>("colorPopup"); }
    void open() { QTest::keyClick(m_picker, Qt::Key_Space); }

    static Components hsv(const QKAVOColorManipulator &picker)
    {
        const auto color = picker.getColor();
        return { color[0], color[1], color[2] };
    }

    QTemporaryDir m_settings;
    std::unique_ptr<QWidget> m_window;
    QKAVOColorManipulator *m_picker = nullptr;
};
