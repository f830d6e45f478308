#pragma once

#include "Tables/kavoPatterns.h"

/// The format of a table of value pairs, and the selection of what an export writes.
struct kavoTableOptions
{
    enum Format { Csv, JsonLines };

    /// Returns the format for the ending of a file name: JSON Lines for .jsonl, else CSV.
    static Format formatOf(const QString &fileName);
    /// \param text comma, semicolon or tab, or the delimiter itself: any ASCII character but a
    /// quote, a line end and NUL
    /// \returns false for any other text; the delimiter is unchanged then
    bool setDelimiter(const QString &text);

    Format format = Csv;
    // For CSV only:
    char delimiter = ',';
    char decimalSeparator = '.';
    bool startsWithByteOrderMark = false;
    /// If true, text that a spreadsheet would take for a formula gets an apostrophe before it.
    bool guardsFormulas = true;

    // For exports only:
    kavoPatterns keys; ///< the columns
    kavoPatterns nodeNames;
    kavoPatterns coreTypes;
    kavoPatterns nodeKeys; ///< a node needs at least one matching key
    bool takesAllNodes = false; ///< if true, also nodes that are not fully visible
};
