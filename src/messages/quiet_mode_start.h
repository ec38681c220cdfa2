#pragma once

#include "foundation/time/time_object.h"

class XMLElement;

// The period in which the user interface is not to be used. A time that the message lacks is the beginning of 1970.
struct QuietModeStart {
    TimeObject start_time;
    TimeObject end_time;
};

void XMLSerialize(XMLElement const& element, QuietModeStart& period);
