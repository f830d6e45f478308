#pragma once

#include <QMetaMethod>
#include <QStringList>

/// The signals, slots and invokable methods that a class declares itself, in order.
inline QStringList kavoMetaMethods(const QMetaObject &metaObject)
{
    QStringList methods;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i)
        methods << metaObject.method(i).methodSignature();
    return methods;
}
