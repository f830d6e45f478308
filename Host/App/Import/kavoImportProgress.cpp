#include "Import/kavoImportProgress.h"

#include <algorithm>

kavoImportProgress::kavoImportProgress(
    const std::atomic_bool &canceled, std::function<void(int)> report)
    : m_canceled(canceled)
    , m_report(std::move(report))
{
}

bool kavoImportProgress::Update(float fraction)
{
    if (m_canceled)
        throw kavoImportCanceled();
    const int percent = std::clamp(int(fraction * 100), 0, 100);
    if (percent > m_percent) { // it starts again from 0 for a file that references others
        m_percent = percent;
        m_report(percent);
    }
    return true;
}
