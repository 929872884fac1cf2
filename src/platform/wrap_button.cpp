#include "platform/wrap_button.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace gp {

void WrapButton::paintEvent(QPaintEvent*) {
    QStylePainter p(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString caption = option.text;
    option.text.clear();
    p.drawControl(QStyle::CE_PushButton, option);
    const QRect area = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    p.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    p.drawText(area, Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic, caption);
}

} // namespace gp
