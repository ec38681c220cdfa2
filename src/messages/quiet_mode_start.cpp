#include "messages/quiet_mode_start.h"

#include "xml/serialize.h"

void XMLSerialize(XMLElement const& element, QuietModeStart& period) {
    XMLSerialize(element, "StartTime", period.start_time);
    XMLSerialize(element, "EndTime", period.end_time);
}
