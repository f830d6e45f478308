#pragma once

#include <kavoSDKExport.h>

#include <functional>
#include <string>
#include <vector>

/// The host's log. Every line goes to standard error, is kept, and reaches the observers (the Log
/// window is one). May be used from any thread.
class KAVO_SDK_EXPORT kavoLog
{
public:
    enum class Level { Info, Warning, Error };

    struct Entry
    {
        Level level;
        std::string text; ///< UTF-8, without a newline at its end
    };
    using Observer = std::function<void(const Entry &)>;

    /// One line each, formatted as by printf; a newline at the end of the format is not needed.
    static void error(const char *format, ...) __attribute__((format(printf, 1, 2)));
    static void warning(const char *format, ...) __attribute__((format(printf, 1, 2)));
    static void info(const char *format, ...) __attribute__((format(printf, 1, 2)));

    /// The newest lines, oldest first, at most historyLimit.
    static std::vector<Entry> history();
    static constexpr std::size_t historyLimit = 10000;

    /// Registers a function that is called with each new line, on the thread that writes it.
    /// \returns a number for removeObserver
    static int addObserver(Observer observer);
    /// Lines to come do not reach it any more; on another thread it may still be running for one
    /// that was written before.
    static void removeObserver(int number);

    /// "info", "warning" or "error".
    static const char *levelName(Level level);
};
