#pragma once

#include <QCoreApplication>
#include <QString>

#include <exception>
#include <optional>

/// Runs a function that may throw anything, as the field types and callbacks of plug-ins do.
/// \returns why it failed, in words for the user; nothing if it did not
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
