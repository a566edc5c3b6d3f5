#pragma once

#include "host/Export.h"

#include <QLabel>

namespace kelvra_base {

/** The client's logo; it sizes itself to its picture. */
class KELVRA_BASE_EXPORT LogoLabel : public QLabel
{
    Q_OBJECT

public:
    /** @param parent owner; the label floats over it and is placed by whoever made it */
    explicit LogoLabel(QWidget *parent = nullptr);
    ~LogoLabel() override;
};

} // namespace kelvra_base
