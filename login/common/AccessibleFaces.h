#pragma once

namespace kelvra_login {

/**
 * What the module's widgets are to assistive technology: the one place that gives them their faces. It knows the
 * widgets by the names of their classes, so that they can include it. A host's widgets keep the faces of the toolkit,
 * beside and within the module's windows.
 */
class AccessibleFaces
{
public:
    AccessibleFaces() = delete;

    /**
     * Has the faces asked for from now on, until the module is unloaded. The toolkit asks those last that were
     * installed first, and installs its own with the application: call it from what only exists after that. Further
     * calls change nothing.
     */
    static void install();
};

} // namespace kelvra_login
