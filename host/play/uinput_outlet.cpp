#include "host/play/uinput_outlet.h"

#include <string_view>

namespace tavi {

QString UinputOutlet::Open(const QSize& surface) {
  taviguest::GuestOptions options;
  options.surface = {surface.width(), surface.height()};
  const std::lock_guard<std::mutex> lock(lock_);
  guest_.reset();  // the old devices' names are free before new devices use them
  auto guest = std::make_unique<taviguest::UinputGuest>(options);
  const std::string problem = guest->Open();
  if (problem.empty()) guest_ = std::move(guest);
  return QString::fromStdString(problem);
}

void UinputOutlet::Send(const char* data, int length) {
  const std::lock_guard<std::mutex> lock(lock_);
  if (!guest_) return;
  const std::string problem = guest_->TakeLine(std::string_view(data, static_cast<std::size_t>(length)));
  if (!problem.empty()) tell_(QString::fromStdString(problem));
}

void UinputOutlet::LiftAll() {
  const std::lock_guard<std::mutex> lock(lock_);
  if (guest_) guest_->LiftAll();
}

void UinputOutlet::Close() {
  const std::lock_guard<std::mutex> lock(lock_);
  guest_.reset();
}

}  // namespace tavi
