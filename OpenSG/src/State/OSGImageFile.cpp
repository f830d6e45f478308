#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGLog.h>

#include <fstream>
#include <limits>
#include <string>

OSG_BEGIN_NAMESPACE

namespace {

// Reads a number of the header and skips comments before it.
Int32 readNumber(std::istream &in)
{
    while ((in >> std::ws).peek() == '#') {
        in.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    Int32 number = 0;
    in >> number;
    return in ? number : 0;
}

std::streamoff bytesLeft(std::istream &in)
{
    const std::streampos here = in.tellg();
    const std::streampos end = in.seekg(0, std::ios::end).tellg();
    in.seekg(here);
    return end - here;
}

// Files begin with the top row, images with the bottom row.
void readRows(std::istream &in, Image &image, std::streamsize rowSize)
{
    for (Int32 row = image.getHeight() - 1; row >= 0; --row) {
        in.read(reinterpret_cast<char *>(image.getData()) + row * rowSize, rowSize);
    }
}

bool readImage(std::istream &in, Image &image)
{
    std::string magic(2, '\0');
    in.read(magic.data(), 2);
    const bool isGrey = magic == "P5";
    const Int32 width = readNumber(in);
    const Int32 height = readNumber(in);
    const bool hasBytes = readNumber(in) == 255;
    in.get();
    const std::streamsize rowSize = std::streamsize(width) * (isGrey ? 1 : 3);
    if ((!isGrey && magic != "P6") || !hasBytes || width < 1 || height < 1
        || bytesLeft(in) / rowSize < height
        || !image.set(isGrey ? Image::OSG_L_PF : Image::OSG_RGB_PF, width, height)) {
        return false;
    }
    readRows(in, image, rowSize);
    return bool(in);
}

} // namespace

bool Image::read(const Char8 *fileName)
{
    std::ifstream file(fileName ? fileName : "", std::ios::binary);
    const bool ok = file && readImage(file, *this);
    if (!ok) {
        SWARNING << "Image::read: " << (fileName ? fileName : "no file name")
                 << " is no PNM image of bytes" << endLog;
    }
    return ok;
}

bool Image::write(const Char8 *fileName)
{
    const bool isGrey = getPixelFormat() == OSG_L_PF;
    const bool isKnown = isGrey || getPixelFormat() == OSG_RGB_PF;
    const std::streamsize rowSize = std::streamsize(getWidth()) * (isGrey ? 1 : 3);
    if (!fileName || !isKnown || getDataType() != OSG_UINT8_IMAGEDATA || getWidth() < 1
        || getHeight() < 1 || getSize() / rowSize < getHeight()) {
        SWARNING << "Image::write: only grey and RGB images of bytes can be written" << endLog;
        return false;
    }
    std::ofstream file(fileName, std::ios::binary);
    file << (isGrey ? "P5\n" : "P6\n") << getWidth() << ' ' << getHeight() << "\n255\n";
    for (Int32 row = getHeight() - 1; row >= 0; --row) {
        file.write(reinterpret_cast<const char *>(getData()) + row * rowSize, rowSize);
    }
    if (!file.flush()) {
        SWARNING << "Image::write: " << fileName << " cannot be written" << endLog;
        return false;
    }
    return true;
}

OSG_END_NAMESPACE
