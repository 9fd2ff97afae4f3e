#pragma once

// Result codes and enumerations of the host interface. The host's names for most values are not known here;
// callers pass their numbers, which is why each enumeration has a fixed underlying type.

/// Result of a host call. Other values than these two may occur.
enum pvResult : int { PVRESULT_False = 0, PVRESULT_True = 1 };

/// Why a command could not be created. Any value but pvCreateCommand_Succeeded is a failure.
enum pvCreateCommandError_e : int { pvCreateCommand_Succeeded = 0, pvCreateCommand_CommandNameExisted = 1 };

enum pvApplicationOptionInt16_e : int {};
enum pvGetApplicationOptionResult_e : int {};
enum pvUIState_e : int {};
enum pvMenuItemType_e : int {};
enum pvCommandEvent_id_e : int {};
enum pvRibbonButtonStyle_e : int {};
enum pvCustomPropertyControlArea_e : int {};
enum pvLanguage_e : int {};
enum pvPromptResultType_e : int {};
