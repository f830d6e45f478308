#pragma once

// Marks what the SDK library exports; everything else of it stays hidden.
#define KAVO_SDK_EXPORT __attribute__((visibility("default")))
