#include "core/recorder_offer.h"

#include "record/record_manager.h"

namespace taviinputmanager {

bool IsLineRecorded() { return RecordManager::GetInstance()->GetStatus() == RecordStatus::Recording; }

}  // namespace taviinputmanager
