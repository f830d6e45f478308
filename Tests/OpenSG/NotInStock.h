#pragma once

#include <QtTest>

/// First line of a test that an installed OpenSG 1.8 (OPENSG_ROOT) cannot pass, with the reason.
/// What does not even compile there is in tst_additions.cpp.
#ifdef KAVO_STOCK_OPENSG
#define NOT_IN_STOCK(reason) QSKIP(reason)
#else
#define NOT_IN_STOCK(reason) static_cast<void>(0)
#endif
