#pragma once

#include <qtpropertybrowser.h>

class QtGLenumPropertyManagerPrivate;

/// Property manager for OpenGL enumeration values. Shows the name of the value. A new property has
/// the value 0xFFFFFFFF, which has no name.
class QtGLenumPropertyManager : public QtAbstractPropertyManager
{
    Q_OBJECT
public:
    explicit QtGLenumPropertyManager(QObject *parent = nullptr);
    ~QtGLenumPropertyManager() override;

    /// Returns 0 for a property of another manager.
    unsigned int value(const QtProperty *property) const;

public Q_SLOTS:
    /// Ignores a property of another manager. Accepts values without a name.
    void setValue(QtProperty *property, unsigned int value);

Q_SIGNALS:
    /// Emitted by every setValue(), even if the value stays the same.
    void valueChanged(QtProperty *property, unsigned int value);

protected:
    QString valueText(const QtProperty *property) const override;
    void initializeProperty(QtProperty *property) override;
    void uninitializeProperty(QtProperty *property) override;

private:
    QtGLenumPropertyManagerPrivate *d_ptr;
    Q_DECLARE_PRIVATE(QtGLenumPropertyManager)
    Q_DISABLE_COPY(QtGLenumPropertyManager)
};

class QtGLenumEditorFactoryPrivate;

/// Editor factory that creates combo boxes. A combo box offers the values that are allowed for the
/// field with the property's name. If there is no such field, it offers the first group of
/// constants that contains the property's value.
class QtGLenumEditorFactory : public QtAbstractEditorFactory<QtGLenumPropertyManager>
{
    Q_OBJECT
public:
    explicit QtGLenumEditorFactory(QObject *parent = nullptr);
    ~QtGLenumEditorFactory() override;

protected:
    void connectPropertyManager(QtGLenumPropertyManager *manager) override;
    QWidget *createEditor(
        QtGLenumPropertyManager *manager, QtProperty *property, QWidget *parent) override;
    void disconnectPropertyManager(QtGLenumPropertyManager *manager) override;

private:
    QtGLenumEditorFactoryPrivate *d_ptr;
    Q_DECLARE_PRIVATE(QtGLenumEditorFactory)
    Q_DISABLE_COPY(QtGLenumEditorFactory)
    Q_PRIVATE_SLOT(d_func(), void slotPropertyChanged(QtProperty *, unsigned int))
    Q_PRIVATE_SLOT(d_func(), void slotSetValue(unsigned int))
    Q_PRIVATE_SLOT(d_func(), void slotEditorDestroyed(QObject *))
};
