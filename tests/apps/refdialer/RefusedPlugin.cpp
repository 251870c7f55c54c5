// SPDX-License-Identifier: MIT
#include "IUIPlugin.h"

#include <QtPlugin>

#ifdef NEEDS_MISSING_SYMBOL
extern "C" void missingInEveryLibrary();
#endif

/// A plug-in by its metadata alone: its root object has none of the interfaces.
class RefusedPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PLUGIN_IID)

public:
#ifdef NEEDS_MISSING_SYMBOL
    RefusedPlugin()
    {
        missingInEveryLibrary();
    }
#endif
};

#include "RefusedPlugin.moc"
