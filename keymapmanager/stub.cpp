#include "keymap/keymap_functions.h"
#include "keymap/joystick_event.h"
namespace tavikeymapmanager {
KeymapConfig* LoadKeymapConfigAndInfo(const QString&){return new KeymapConfig;} KeymapConfig* LoadJoystickConfigAndInfo(const QString&){return new KeymapConfig;}
ConfigKey CreateConfigKey(QString d,int v,int s){ConfigKey k;k.device=d;k.virtual_key=v;k.scancode=s;return k;} void SetTextForConfigKey(ConfigKey*){}
bool isConfigKeyMatch(KeymapConfig*,ConfigKey*,ConfigKey*){return false;} int getMacroConfigKeyCode(QEvent*){return -1;} bool isConfigHasSpeicalTypeKey(KeymapConfig*,const QString&){return false;}
const QEvent::Type JoystickEvent::ButtonPress=QEvent::Type(1001),JoystickEvent::ButtonRelease=QEvent::Type(1002),JoystickEvent::AxisTriggle=QEvent::Type(1003);
}
