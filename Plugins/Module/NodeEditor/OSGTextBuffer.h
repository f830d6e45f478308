#pragma once

#include <OpenSG/OSGConfig.h>

#include <cstddef>
#include <cstring>
#include <ostream>
#include <vector>

OSG_BEGIN_NAMESPACE

/// Collects pieces of text, most of them only a few bytes long, and hands them to a stream in large
/// blocks. Room for them is made beforehand and for many at once; pieces are then just copied.
class TextBuffer
{
public:
    explicit TextBuffer(std::ostream &out)
        : m_out(out)
    {
    }

    /// Makes room for so many bytes.
    void reserve(std::size_t size)
    {
        if (m_size + size + stride <= m_text.size())
            return;
        flush();
        if (size + stride > m_text.size())
            m_text.resize(size + stride + capacity);
    }

    void append(const char *text, std::size_t size)
    {
        std::memcpy(&m_text[m_size], text, size);
        m_size += size;
    }

    /// The same, faster where there is something to read behind a short text.
    void append(const char *text, std::size_t size, const char *readableEnd)
    {
        if (size > stride || std::size_t(readableEnd - text) < stride)
            return append(text, size);
        std::memcpy(&m_text[m_size], text, stride);
        m_size += size;
    }

    void append(char c) { m_text[m_size++] = c; }

    /// Appends a character so many times, a few more at one go than it counts.
    void append(std::size_t count, char c)
    {
        for (std::size_t done = 0; done < count; done += stride)
            std::memset(&m_text[m_size + done], c, stride);
        m_size += count;
    }

    void flush()
    {
        m_out.write(m_text.data(), std::streamsize(m_size));
        m_size = 0;
    }

private:
    static constexpr std::size_t stride = 32;
    static constexpr std::size_t capacity = 1 << 18;

    std::ostream &m_out;
    std::vector<char> m_text;
    std::size_t m_size = 0;
};

OSG_END_NAMESPACE
