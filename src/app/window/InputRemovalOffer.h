#pragma once

class CDiskWork;
class QWidget;

namespace thisapp {

class IMessageAreas;
struct SEncryptData;

/// After a job: whether its input is to be deleted now, as the settings and the user say. Explains it
/// when the user wants that, but the input is to be kept.
bool isInputRemovalWanted(QWidget& window, const SEncryptData& ended, CDiskWork& disk, IMessageAreas& areas);

} // namespace thisapp
