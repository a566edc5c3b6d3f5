#pragma once

#include "host/Export.h"

#include <QLabel>

#include <memory>

namespace ZCOMMON {

/**
 * A one-line label that never grows its window: a text wider than the label is shown shortened with an ellipsis
 * and offered whole as a tool tip.
 */
class ZCOMMON_EXPORT ZLabel : public QLabel
{
    Q_OBJECT

public:
    /** Takes its text for plain text, never rich. @param parent owner, may be null */
    explicit ZLabel(QWidget *parent = nullptr);
    ~ZLabel() override;

    /** Sets the whole text; what is shown of it follows the label's width. */
    void setText(const QString &text);

    /** Wide enough for the ellipsis alone, as high as the text. */
    QSize minimumSizeHint() const override;

protected:
    /** Shortens the text anew, for another width or another font. */
    ///@{
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    ///@}
    /** Draws what fits of the text. */
    void paintEvent(QPaintEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
    Q_DISABLE_COPY(ZLabel)
};

} // namespace ZCOMMON
