#pragma once

#include <QString>
#include <stdexcept>

/// The reason why a task failed, as a message for the user.
class kavoTaskError : public std::runtime_error
{
public:
    explicit kavoTaskError(const QString &message)
        : std::runtime_error(message.toStdString())
    {
    }

    QString message() const { return QString::fromUtf8(what()); }
};
