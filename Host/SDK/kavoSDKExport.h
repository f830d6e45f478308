#pragma once

// Exports a symbol from the SDK library, whose other symbols are hidden.
#define KAVO_SDK_EXPORT __attribute__((visibility("default")))
