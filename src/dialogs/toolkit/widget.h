#pragma once

// Xt's names for a widget and for a widget class, repeated so that headers need no X header.
struct _WidgetRec;
using Widget = _WidgetRec*;
struct _WidgetClassRec;
using WidgetClass = _WidgetClassRec*;
