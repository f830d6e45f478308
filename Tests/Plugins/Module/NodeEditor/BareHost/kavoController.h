#pragma once

class QKAVODockWindowManager;
class QWidget;
class kavoMessage;

class kavoController
{
public:
    static QWidget *getMainWindow();
    static QKAVODockWindowManager *getDockWindowManager();
    static void addCB(const char *name, void (*callback)(kavoMessage &));
    static void subCB(const char *name, void (*callback)(kavoMessage &));
    static void call(const char *name, kavoMessage &message, int reserved);
};
