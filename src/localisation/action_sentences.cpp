#include "localisation/action_sentences.h"

// Whole sentences and never fragments, so that every combination can be translated as it must be said. Texts and blanks
// are the keys of existing translations.

ActionSentences const kOneActionSentences = {
    "",
    "You should save your work before taking this action.",
    "You must take this action within {DeadlineText}.",
    "You should save your work before taking this action.  You must take this action within {DeadlineText}.",
    "This action will require a system restart.",
    "You should save your work before taking this action, as it will require a system restart.",
    "This action will require a system restart.  You must take this action within {DeadlineText}.",
    "You should save your work before taking this action, as it will require a system restart.  You must take this "
    "action within {DeadlineText}.",
    "This action will require a system shutdown.",
    "You should save your work before taking this action, as it will require a system shutdown.",
    "This action will require a system shutdown.  You must take this action within {DeadlineText}.",
    "You should save your work before taking this action, as it will require a system shutdown.  You must take this "
    "action within {DeadlineText}.",
    "You must take this action now.",
    "You should save your work before taking this action.  You must take this action now.",
    "This action will require a system restart.  You must take this action now.",
    "You should save your work before taking this action, as it will require a system restart.  You must take this "
    "action now.",
    "This action will require a system shutdown.  You must take this action now.",
    "You should save your work before taking this action, as it will require a system shutdown.  You must take this "
    "action now.",
    "This action will run automatically in {DeadlineText}.",
    "You should save your work before taking this action.  This action will run automatically in {DeadlineText}.",
    "This action will require a system restart.  This action will run automatically in {DeadlineText}.",
    "You should save your work before taking this action, as it will require a system restart.  This action will run "
    "automatically in {DeadlineText}.",
    "This action will require a system shutdown.  This action will run automatically in {DeadlineText}.",
    "You should save your work before taking this action, as it will require a system shutdown.  This action will run "
    "automatically in {DeadlineText}.",
};

ActionSentences const kSelectedActionsSentences = {
    "",
    "You should save your work before taking the selected actions.",
    "There is at least one selected action you must take within {DeadlineText}.",
    "You should save your work before taking the selected actions.  There is at least one selected action you must "
    "take within {DeadlineText}.",
    "The selected actions will require a system restart when they are complete.",
    "You should save your work before taking the selected actions, as they will require a system restart when they are "
    "complete.",
    "The selected actions will require a system restart when they are complete.  There is at least one selected action "
    "you must take within {DeadlineText}.",
    "You should save your work before taking the selected actions, as they will require a system restart when they are "
    "complete.  There is at least one selected action you must take within {DeadlineText}.",
    "The selected actions will require a system shutdown when they are complete.",
    "You should save your work before taking the selected actions, as they will require a system shutdown when they "
    "are complete.",
    "The selected actions will require a system shutdown when they are complete.  There is at least one selected "
    "action you must take within {DeadlineText}.",
    "You should save your work before taking the selected actions, as they will require a system shutdown when they "
    "are complete.  There is at least one selected action you must take within {DeadlineText}.",
    "There is at least one selected action you must take now.",
    "You should save your work before taking the selected actions.  There is at least one selected action you must "
    "take now.",
    "The selected actions will require a system restart when they are complete.  There is at least one selected action "
    "you must take now.",
    "You should save your work before taking the selected actions, as they will require a system restart when they are "
    "complete.  There is at least one selected action you must take now.",
    "The selected actions will require a system shutdown when they are complete.  There is at least one selected "
    "action you must take now.",
    "You should save your work before taking the selected actions, as they will require a system shutdown when they "
    "are complete.  There is at least one selected action you must take now.",
    "At least one of the selected actions will run automatically in {DeadlineText}.",
    "You should save your work before taking the selected actions.  At least one of the selected actions will run "
    "automatically in {DeadlineText}.",
    "The selected actions will require a system restart when they are complete.  At least one of the selected actions "
    "will run automatically in {DeadlineText}.",
    "You should save your work before taking the selected actions, as they will require a system restart when they are "
    "complete.  At least one of the selected actions will run automatically in {DeadlineText}.",
    "The selected actions will require a system shutdown when they are complete.  At least one of the selected actions "
    "will run automatically in {DeadlineText}.",
    "You should save your work before taking the selected actions, as they will require a system shutdown when they "
    "are complete.  At least one of the selected actions will run automatically in {DeadlineText}.",
};

ActionSentences const kPendingActionsSentences = {
    "",
    "You should save your work before taking these actions.",
    "There is at least one action you must take within {DeadlineText}.",
    "You should save your work before taking these actions.  There is at least one action you must take within "
    "{DeadlineText}.",
    "The pending actions will require a system restart when they are complete.",
    "You should save your work before taking these actions, as they will require a system restart when they are "
    "complete.",
    "The pending actions will require a system restart when they are complete.  There is at least one action you must "
    "take within {DeadlineText}.",
    "You should save your work before taking these actions, as they will require a system restart when they are "
    "complete.  There is at least one action you must take within {DeadlineText}.",
    "The pending actions will require a system shutdown when they are complete.",
    "You should save your work before taking these actions, as they will require a system shutdown when they are "
    "complete.",
    "The pending actions will require a system shutdown when they are complete.  There is at least one action you must "
    "take within {DeadlineText}.",
    "You should save your work before taking these actions, as they will require a system shutdown when they are "
    "complete.  There is at least one action you must take within {DeadlineText}.",
    "There is at least one action you must take now.",
    "You should save your work before taking these actions.  There is at least one action you must take now.",
    "The pending actions will require a system restart when they are complete.  There is at least one action you must "
    "take now.",
    "You should save your work before taking these actions, as they will require a system restart when they are "
    "complete.  There is at least one action you must take now.",
    "The pending actions will require a system shutdown when they are complete.  There is at least one action you must "
    "take now.",
    "You should save your work before taking these actions, as they will require a system shutdown when they are "
    "complete.  There is at least one action you must take now.",
    "At least one of these actions will run automatically in {DeadlineText}.",
    "You should save your work before taking these actions.  At least one of these actions will run automatically in "
    "{DeadlineText}.",
    "The pending actions will require a system restart when they are complete.  At least one of these actions will run "
    "automatically in {DeadlineText}.",
    "You should save your work before taking these actions, as they will require a system restart when they are "
    "complete.  At least one of these actions will run automatically in {DeadlineText}.",
    "The pending actions will require a system shutdown when they are complete.  At least one of these actions will "
    "run automatically in {DeadlineText}.",
    "You should save your work before taking these actions, as they will require a system shutdown when they are "
    "complete.  At least one of these actions will run automatically in {DeadlineText}.",
};
