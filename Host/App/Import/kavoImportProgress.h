#pragma once

#include <assimp/ProgressHandler.hpp>
#include <atomic>
#include <exception>
#include <functional>

/// Thrown to stop Assimp, which often ignores the result of a progress handler.
class kavoImportCanceled : public std::exception
{
};

/// Receives the progress of Assimp, on the thread that parses.
class kavoImportProgress : public Assimp::ProgressHandler
{
public:
    /// Calls \p report with each new percentage, 0 to 100.
    kavoImportProgress(const std::atomic_bool &canceled, std::function<void(int)> report);

    bool Update(float fraction) override;

private:
    const std::atomic_bool &m_canceled;
    std::function<void(int)> m_report;
    int m_percent = -1;
};
