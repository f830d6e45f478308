#include "Tables/kavoTableWriter.h"

#include "Tables/kavoCsvWriter.h"
#include "Tables/kavoJsonLinesWriter.h"

std::unique_ptr<kavoTableWriter> kavoTableWriter::create(
    std::ostream &out, const kavoTableOptions &options)
{
    if (options.format == kavoTableOptions::JsonLines)
        return std::make_unique<kavoJsonLinesWriter>(out);
    return std::make_unique<kavoCsvWriter>(out, options);
}
