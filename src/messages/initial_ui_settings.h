#pragma once

#include "foundation/base/const_data.h"
#include "foundation/base/null_or.h"
#include "foundation/time/instant.h"
#include "foundation/time/time_object.h"

class XMLElement;

// The settings that the client hands over at the start. Everything is zero, false or null until read.
//
// No dialog of this program reads the history, balloon, tray and activity settings: they belong to the client's message
// and are kept complete.
struct InitialUISettings {
    TimeInterval remind_interval{0};
    NullOr<TimeObject> remind_time;
    unsigned history_mode = 0;
    unsigned tech_history_mode = 0;
    NullOr<TimeInterval> max_history_age;
    NullOr<TimeInterval> max_tech_history_age;
    unsigned balloon_mode = 0;
    unsigned tray_mode = 0;
    bool has_main_dialog = false;
    bool allow_snooze = false;
    bool always_topmost = false;
    bool display_single_action_summary = false;
    bool use_locale = false;
    TimeInterval idle_threshold{0};
    bool use_activity_tracking = false;
    bool action_running_tray = false;
    NullOr<Stringy> initial_tab_id;
};

// Reads the fields that the element has, in the order above; the others keep what they hold.
void XMLSerialize(XMLElement const& element, InitialUISettings& settings);
