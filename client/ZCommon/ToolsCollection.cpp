#include "host/ZCommon/ToolsCollection.h"

namespace ZCOMMON {

QString ToolsCollection::reverseString(const QString &text)
{
    QString reversed;
    reversed.reserve(text.size());
    for (int i = text.size() - 1; i >= 0; --i) {
        if (i > 0 && text.at(i).isLowSurrogate() && text.at(i - 1).isHighSurrogate()) {
            --i;
            reversed += text.at(i);
            reversed += text.at(i + 1);
        } else {
            reversed += text.at(i);
        }
    }
    return reversed;
}

} // namespace ZCOMMON
