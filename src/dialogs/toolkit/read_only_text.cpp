#include "dialogs/toolkit/read_only_text.h"

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/AsciiText.h>

#include "dialogs/toolkit/widgets.h"

Widget CreateReadOnlyText(Widget parent, char const* name, char const* text, Arguments arguments) {
    Arguments common = {{XtNtype, XawAsciiString},  {XtNstring, text},
                        {XtNeditType, XawtextRead}, {XtNscrollVertical, XawtextScrollAlways},
                        {XtNwrap, XawtextWrapWord}, {XtNdisplayCaret, false},
                        {XtNinternational, true}};
    return Create(parent, name, asciiTextWidgetClass, common, arguments);
}

void SetText(Widget readOnlyText, char const* text) {
    SetResources(readOnlyText, {{XtNstring, text}});
    // Drawn anew as a whole: lines of another height would leave parts of the old ones behind.
    if (XtIsRealized(readOnlyText)) XClearArea(XtDisplay(readOnlyText), XtWindow(readOnlyText), 0, 0, 0, 0, True);
}
