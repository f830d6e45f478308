#include "kavoVariantPropertyManager.h"

#include "kavoRealText.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int longestText = 32767; // default maximum of QLineEdit

bool isShownAsBlank(QChar c)
{
    return (c < QChar::Space && c != QChar::Tabulation) || c == QChar::LineSeparator
        || c == QChar::ParagraphSeparator || c == QChar::ObjectReplacementCharacter;
}

// Returns the text as a line edit shows it.
QString lineText(const QVariant &value)
{
    QString text = value.toString().left(longestText);
    std::replace_if(text.begin(), text.end(), isShownAsBlank, QChar(QChar::Space));
    return text;
}

} // namespace

QString kavoVariantPropertyManager::valueText(const QtProperty *property) const
{
    switch (propertyType(property)) {
    case QVariant::Double:
        return kavoRealText(value(property).toDouble(), QLocale());
    case QVariant::String:
        return lineText(value(property));
    default:
        return QtVariantPropertyManager::valueText(property);
    }
}

// All text rows share one regular expression, which matches anything. Versions of the component
// that use QRegExp are left alone.
void kavoVariantPropertyManager::initializeProperty(QtProperty *property)
{
    static const QString expression = QStringLiteral("regExp");
    static const QVariant anything = QRegularExpression();
    static const bool isShared = attributeType(QVariant::String, expression) == anything.userType();
    QtVariantPropertyManager::initializeProperty(property);
    if (isShared && propertyType(property) == QVariant::String)
        setAttribute(property, expression, anything);
}
