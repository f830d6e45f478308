#pragma once

#include <qtpropertybrowser.h>

/// The value of a colour field. No range is enforced.
struct colorVal
{
    float r; ///< 0 to 1
    float g; ///< 0 to 1
    float b; ///< 0 to 1
    float a; ///< 0 to 1; always 1 after an edit
};

class QtKavoColorPropertyManagerPrivate;

/// Property manager for colours. Shows a swatch and the four components. A new property is opaque
/// black.
class QtKavoColorPropertyManager : public QtAbstractPropertyManager
{
    Q_OBJECT
public:
    explicit QtKavoColorPropertyManager(QObject *parent = nullptr);
    ~QtKavoColorPropertyManager() override;

    /// Returns zeros for a property of another manager.
    colorVal value(const QtProperty *property) const;

public Q_SLOTS:
    /// Ignores a property of another manager.
    void setValue(QtProperty *property, colorVal value);

Q_SIGNALS:
    /// Emitted by every setValue(), even if the value stays the same.
    void valueChanged(QtProperty *property, colorVal value);

protected:
    QIcon valueIcon(const QtProperty *property) const override;
    QString valueText(const QtProperty *property) const override;
    void initializeProperty(QtProperty *property) override;
    void uninitializeProperty(QtProperty *property) override;

private:
    QtKavoColorPropertyManagerPrivate *d_ptr;
    Q_DECLARE_PRIVATE(QtKavoColorPropertyManager)
    Q_DISABLE_COPY(QtKavoColorPropertyManager)
};

class QtKavoColorEditorFactoryPrivate;

/// Editor factory that creates the host's colour picker. An open picker ignores changes of the
/// property that are made elsewhere.
class QtKavoColorEditorFactory : public QtAbstractEditorFactory<QtKavoColorPropertyManager>
{
    Q_OBJECT
public:
    explicit QtKavoColorEditorFactory(QObject *parent = nullptr);
    ~QtKavoColorEditorFactory() override;

protected:
    void connectPropertyManager(QtKavoColorPropertyManager *manager) override;
    QWidget *createEditor(
        QtKavoColorPropertyManager *manager, QtProperty *property, QWidget *parent) override;
    void disconnectPropertyManager(QtKavoColorPropertyManager *manager) override;

private:
    QtKavoColorEditorFactoryPrivate *d_ptr;
    Q_DECLARE_PRIVATE(QtKavoColorEditorFactory)
    Q_DISABLE_COPY(QtKavoColorEditorFactory)
    Q_PRIVATE_SLOT(d_func(), void slotPropertyChanged(QtProperty *, colorVal))
    Q_PRIVATE_SLOT(d_func(), void slotSetValue())
    Q_PRIVATE_SLOT(d_func(), void slotEditorDestroyed(QObject *))
};
