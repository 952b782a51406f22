#include "toolkit/table/DeleteButton.h"

#include "toolkit/drawing/Theme.h"
#include "toolkit/table/Table.h"

namespace brimsound::toolkit {

DeleteButton::DeleteButton()
    : TitledButton("Delete", { {}, theme::textSize }, nullptr)
{
    setClips(true);
}

void DeleteButton::pressed()
{
    // When the button is released, the table may not exist and the swipe may have ended.
    auto* table = dynamic_cast<Table*>(parent());
    if (table && table->swipe().button() == this)
        table->deleteRow(table->swipe().row());
}

void DeleteButton::draw(Canvas& canvas) const
{
    const auto size = shownFrame().size;
    canvas.fillRect({ {}, size }, looksPressed() ? theme::destructivePressed : theme::destructive);
    // The title moves with the edge of the row.
    const auto place = makeRect(0, 0, width, size.height);
    canvas.drawLine(title(), isRightToLeft() ? mirrored(place, size.width) : place, font(),
        theme::rowBackground, Alignment::Center);
}

} // namespace brimsound::toolkit
