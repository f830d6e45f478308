#include "kavoVariantPropertyManager.h"

#include "kavoRealText.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int longestText = 32767; // that a line edit shows unless told otherwise

bool isShownAsBlank(QChar c)
{
    return (c < QChar::Space && c != QChar::Tabulation) || c == QChar::LineSeparator
        || c == QChar::ParagraphSeparator || c == QChar::ObjectReplacementCharacter;
}

// As a line edit shows it.
QString lineText(const QVariant &value)
{
    QString text = value.toString().left(longestText);
    std::replace_if(text.begin(), text.end(), isShownAsBlank, QChar(QChar::Space));
    return text;
}

}

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

// Texts share one expression, which accepts anything and is compiled once. Versions of the
// component with QRegExp keep theirs.
void kavoVariantPropertyManager::initializeProperty(QtProperty *property)
{
    static const QString expression = QStringLiteral("regExp");
    static const QVariant anything = QRegularExpression();
    static const bool isShared = attributeType(QVariant::String, expression) == anything.userType();
    QtVariantPropertyManager::initializeProperty(property);
    if (isShared && propertyType(property) == QVariant::String)
        setAttribute(property, expression, anything);
}
