#pragma once

#include "host/Export.h"

#include <QObject>

namespace kelvra_base {

/**
 * What the shell sees of a module. The shell fetches a module's object, then calls `moduleInit()` and `init()`
 * through this base; it calls `recoveryToInitialState()` when the client goes back to its initial state.
 */
class KELVRA_BASE_EXPORT ModuleInitialization : public QObject
{
    Q_OBJECT

public:
    ~ModuleInitialization() override;

    /** The shell's first call, once at start-up. The base does nothing. */
    virtual void moduleInit();
    /** The shell's second call; a module bears it more than once. The base does nothing. */
    virtual void init();
    /** The client goes back to its initial state: the module forgets what it has kept. The base does nothing. */
    virtual void recoveryToInitialState();

protected:
    /** @param parent owner; null for a module that is a singleton */
    explicit ModuleInitialization(QObject *parent);

    /**
     * Adds the style sheet resource at `path` to the application's style sheet. Loading the same path again
     * replaces what it brought before, so the result is that of loading it once. A path that cannot be read is
     * reported as a warning and changes nothing.
     */
    void loadStyleSheet(const QString &path);
};

} // namespace kelvra_base
