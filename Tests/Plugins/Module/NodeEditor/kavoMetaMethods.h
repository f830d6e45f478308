#pragma once

#include <QMetaMethod>
#include <QStringList>

/// Returns the signals, slots and invokable methods of the class without those of its base, in
/// order.
inline QStringList kavoMetaMethods(const QMetaObject &metaObject)
{
    QStringList methods;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i)
        methods << metaObject.method(i).methodSignature();
    return methods;
}
