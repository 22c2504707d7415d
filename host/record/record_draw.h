#ifndef HOST_RECORD_RECORD_DRAW_H_
#define HOST_RECORD_RECORD_DRAW_H_

#include <QStringList>

namespace tavi {

// `tavi record draw -o PICTURE FILE`
int RunRecordDraw(const QStringList& arguments);

}  // namespace tavi

#endif  // HOST_RECORD_RECORD_DRAW_H_
