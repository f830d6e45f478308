#include <kavoLog.h>

#include <cstdarg>
#include <cstdio>
#include <deque>
#include <map>
#include <mutex>

namespace {

struct State
{
    std::mutex mutex;
    std::deque<kavoLog::Entry> history;
    std::map<int, kavoLog::Observer> observers;
    int lastObserver = 0;
};

// Never destroyed: static objects of plug-ins may still log while they are destroyed.
State &state()
{
    static auto *const instance = new State;
    return *instance;
}

std::string formatted(const char *format, va_list arguments)
{
    va_list measured;
    va_copy(measured, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, measured);
    va_end(measured);
    if (length < 0)
        return format;
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    std::vsnprintf(text.data(), text.size(), format, arguments);
    text.pop_back();
    while (!text.empty() && text.back() == '\n')
        text.pop_back();
    return text;
}

// Observers run without the lock, so that they may log themselves.
std::map<int, kavoLog::Observer> keep(const kavoLog::Entry &entry)
{
    const std::lock_guard<std::mutex> lock(state().mutex);
    state().history.push_back(entry);
    if (state().history.size() > kavoLog::historyLimit)
        state().history.pop_front();
    return state().observers;
}

void write(kavoLog::Level level, const char *format, va_list arguments)
{
    const kavoLog::Entry entry { level, formatted(format, arguments) };
    std::fprintf(stderr, "%s: %s\n", kavoLog::levelName(level), entry.text.c_str());
    for (const auto &observer : keep(entry))
        observer.second(entry);
}

} // namespace

void kavoLog::error(const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    write(Level::Error, format, arguments);
    va_end(arguments);
}

void kavoLog::warning(const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    write(Level::Warning, format, arguments);
    va_end(arguments);
}

void kavoLog::info(const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    write(Level::Info, format, arguments);
    va_end(arguments);
}

std::vector<kavoLog::Entry> kavoLog::history()
{
    const std::lock_guard<std::mutex> lock(state().mutex);
    return { state().history.begin(), state().history.end() };
}

int kavoLog::addObserver(Observer observer)
{
    const std::lock_guard<std::mutex> lock(state().mutex);
    state().observers.emplace(++state().lastObserver, std::move(observer));
    return state().lastObserver;
}

void kavoLog::removeObserver(int number)
{
    const std::lock_guard<std::mutex> lock(state().mutex);
    state().observers.erase(number);
}

const char *kavoLog::levelName(Level level)
{
    static const char *const names[] = { "info", "warning", "error" };
    return names[static_cast<int>(level)];
}
