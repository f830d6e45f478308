#pragma once

#include <QCoreApplication>
#include <QString>

#include <exception>
#include <optional>

/// Calls a function that may throw anything, such as a plug-in's callback.
/// \returns the reason of a failure as a message for the user, empty after success
template <class Function> std::optional<QString> kavoTry(Function function)
{
    try {
        function();
        return std::nullopt;
    } catch (const std::exception &error) {
        return QString::fromUtf8(error.what());
    } catch (...) {
        return QCoreApplication::translate("kavoTry", "unknown exception");
    }
}
