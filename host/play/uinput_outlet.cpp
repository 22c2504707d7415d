#include "host/play/uinput_outlet.h"

namespace tavi {

QString UinputOutlet::Open(const QSize& surface) {
  taviguest::GuestOptions options;
  options.surface = {surface.width(), surface.height()};
  auto guest = std::make_unique<taviguest::UinputGuest>(options);
  const std::string problem = guest->Open();
  if (!problem.empty()) return QString::fromStdString(problem);
  const std::lock_guard<std::mutex> lock(lock_);
  guest_ = std::move(guest);
  return {};
}

void UinputOutlet::Send(const char* data, int length) {
  const std::string problem = Play(std::string_view(data, static_cast<std::size_t>(length)));
  if (!problem.empty()) tell_(QString::fromStdString(problem));
}

std::string UinputOutlet::Play(std::string_view line) {
  const std::lock_guard<std::mutex> lock(lock_);
  return guest_ ? guest_->TakeLine(line) : std::string();
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
