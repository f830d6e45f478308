#pragma once

#include <QLocale>
#include <QString>

/// How rows and spin boxes write real numbers: the shortest text that reads back as the same
/// number, fixed or with an exponent, in the given locale, without group separators.
QString kavoRealText(double value, const QLocale &locale);
