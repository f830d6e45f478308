#pragma once

#include <kavoSDKExport.h>

#include <functional>
#include <string>
#include <vector>

/// The host's log. Every line is written to standard error, stored in the history and passed to the
/// observers, such as the Log window. Thread-safe.
class KAVO_SDK_EXPORT kavoLog
{
public:
    enum class Level { Info, Warning, Error };

    struct Entry
    {
        Level level;
        std::string text; ///< UTF-8, without a final newline
    };
    using Observer = std::function<void(const Entry &)>;

    /// Log a line, formatted as by printf. A newline at the end of the format is optional.
    static void error(const char *format, ...) __attribute__((format(printf, 1, 2)));
    static void warning(const char *format, ...) __attribute__((format(printf, 1, 2)));
    static void info(const char *format, ...) __attribute__((format(printf, 1, 2)));

    /// Returns the newest lines, at most historyLimit, the oldest first.
    static std::vector<Entry> history();
    static constexpr std::size_t historyLimit = 10000;

    /// Registers a function that is called with each new line on the thread that writes it.
    /// \returns the number to pass to removeObserver()
    static int addObserver(Observer observer);
    /// Stops the calls for new lines. A call for an earlier line may still be running on another
    /// thread.
    static void removeObserver(int number);

    /// Returns "info", "warning" or "error".
    static const char *levelName(Level level);
};
