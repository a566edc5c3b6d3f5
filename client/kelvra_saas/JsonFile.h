#pragma once

#include <QJsonObject>
#include <QString>

namespace kelvra_saas {

/** A JSON object in a file of its own that only its owner can read. */
class JsonFile
{
public:
    /** An empty path stands for no file: nothing is read or written. */
    explicit JsonFile(const QString &filePath)
        : path(filePath)
    {
    }

    /** Empty, or a sentence for the user: what is there is no file of a sensible size that can be read. */
    QString problem() const;

    /**
     * Empty when there is no file, or problem() has something to say. One that is no JSON object is set aside under
     * another name, not lost.
     */
    QJsonObject read() const;

    /** Complete or not at all; false when it could not be written. */
    bool write(const QJsonObject &object) const;

private:
    QString path;
};

} // namespace kelvra_saas
