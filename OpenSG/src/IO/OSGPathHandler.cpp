#include <OpenSG/OSGPathHandler.h>

#include <filesystem>

OSG_BEGIN_NAMESPACE

namespace {

// Anything that can be read is accepted, for example a pipe.
bool isFile(const std::filesystem::path &path)
{
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

} // namespace

std::string PathHandler::findFile(const Char8 *fileName) const
{
    if (!fileName || isFile(fileName)) {
        return fileName ? fileName : "";
    }
    for (const std::string &folder : _folders) {
        const std::filesystem::path path = std::filesystem::path(folder) / fileName;
        if (isFile(path)) {
            return path.string();
        }
    }
    return std::string();
}

OSG_END_NAMESPACE
