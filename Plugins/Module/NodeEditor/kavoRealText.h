#pragma once

#include <QLocale>
#include <QString>

/// Returns the shortest text that reads back as the same number in the locale, fixed or with an
/// exponent, without group separators. Rows and spin boxes show numbers in this form.
QString kavoRealText(double value, const QLocale &locale);
