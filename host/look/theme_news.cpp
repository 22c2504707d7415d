#include "host/look/theme_news.h"

namespace tavi::theme {

ThemeNews* ThemeNews::GetInstance() {
  static ThemeNews instance;
  return &instance;
}

}  // namespace tavi::theme
