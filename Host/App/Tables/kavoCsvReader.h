#pragma once

#include "Tables/kavoTable.h"
#include "Tables/kavoTableOptions.h"

#include <QCoreApplication>

#include <string>

/// Reads what kavoCsvWriter writes. Columns of keys may be missing, new or in another order.
class kavoCsvReader
{
    Q_DECLARE_TR_FUNCTIONS(kavoCsvReader)

public:
    /// \throws kavoTaskError if the text is malformed
    static kavoTable read(const std::string &text, const kavoTableOptions &options);
};
