#pragma once

#include <kavoMessage.h>

#include <QObject>

class QPixmap;

class kavoModuleBase : public QObject
{
    Q_OBJECT

public:
    kavoModuleBase(const char *name, const char *group, unsigned int messageMask, QPixmap *icon);
    ~kavoModuleBase() override;

    virtual QWidget *getWidget() const;
    virtual void init();
    virtual void update();
    virtual void loop();
    virtual bool receivedMessage(kavoMessage &message);
};
