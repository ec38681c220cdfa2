#include "messages/initial_ui_settings.h"

#include "xml/serialize.h"

void XMLSerialize(XMLElement const& element, InitialUISettings& settings) {
    XMLSerialize(element, "RemindInterval", settings.remind_interval);
    XMLSerialize(element, "RemindTime", settings.remind_time);
    XMLSerialize(element, "HistoryMode", settings.history_mode);
    XMLSerialize(element, "TechHistoryMode", settings.tech_history_mode);
    XMLSerialize(element, "MaxHistoryAge", settings.max_history_age);
    XMLSerialize(element, "MaxTechHistoryAge", settings.max_tech_history_age);
    XMLSerialize(element, "BalloonMode", settings.balloon_mode);
    XMLSerialize(element, "TrayMode", settings.tray_mode);
    XMLSerialize(element, "HasMainDialog", settings.has_main_dialog);
    XMLSerialize(element, "AllowSnooze", settings.allow_snooze);
    XMLSerialize(element, "AlwaysTopmost", settings.always_topmost);
    XMLSerialize(element, "DisplaySingleActionSummary", settings.display_single_action_summary);
    XMLSerialize(element, "UseLocale", settings.use_locale);
    XMLSerialize(element, "IdleThreshold", settings.idle_threshold);
    XMLSerialize(element, "UseActivityTracking", settings.use_activity_tracking);
    XMLSerialize(element, "ActionRunningTray", settings.action_running_tray);
    XMLSerialize(element, "InitialTabID", settings.initial_tab_id);
}
