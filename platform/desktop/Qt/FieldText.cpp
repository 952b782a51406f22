#include "platform/desktop/Qt/FieldText.h"

namespace brimsound::desktop {

QString FieldText::text(int startOffset, int endOffset) const
{
    // Callers may pass any offset.
    return _field.text(QAccessible::Value).mid(startOffset, endOffset - startOffset);
}

int FieldText::characterCount() const
{
    return static_cast<int>(_field.text(QAccessible::Value).size());
}

QString FieldText::attributes(int, int* startOffset, int* endOffset) const
{
    *startOffset = 0;
    *endOffset = characterCount();
    return {};
}

} // namespace brimsound::desktop
