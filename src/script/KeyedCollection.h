// The one make of all collections of the program: ordered, with optional keys, owner of its items.
// A collection class derives from it and adds an `Add` that makes the item from its arguments. An item keeps
// its address until it is removed; adding and removing make enumerators invalid.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "script/Text.h"

namespace troth {

// Items are numbered from 1. Keys compare without regard to case; an item with an empty key has none.
// Where an operation takes `which`, it takes the number of an item or its key.
template <class T>
class KeyedCollection {
  using Owner = std::unique_ptr<T>;

  // Walks the items in order and ends at std::default_sentinel.
  template <class Value>
  class Enumerator {
   public:
    Enumerator(const Owner* next, const Owner* end) : next_(next), end_(end) {}

    Value& operator*() const { return **next_; }
    Value* operator->() const { return next_->get(); }
    Enumerator& operator++() {
      ++next_;
      return *this;
    }
    bool operator==(std::default_sentinel_t) const { return next_ == end_; }

   private:
    const Owner* next_;
    const Owner* end_;
  };

 public:
  // The item; throws std::out_of_range if there is none.
  T& Item(const auto& which) { return *items_[Existing(which)]; }
  const T& Item(const auto& which) const { return *items_[Existing(which)]; }

  // The item, or null if there is none.
  T* Find(const auto& which) { return OwnerAt(PositionOf(which)); }
  const T* Find(const auto& which) const { return OwnerAt(PositionOf(which)); }

  std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }

  // Destroys the item; later ones move up by one and keep their keys. Throws std::out_of_range if there is
  // none.
  void Remove(const auto& which) { RemoveAt(Existing(which)); }

  Enumerator<T> NewEnum() { return {items_.data(), items_.data() + items_.size()}; }
  Enumerator<const T> NewEnum() const { return {items_.data(), items_.data() + items_.size()}; }

  auto begin() { return NewEnum(); }
  auto begin() const { return NewEnum(); }
  std::default_sentinel_t end() const { return {}; }

 protected:
  // Appends the item. A key that is taken throws std::invalid_argument, and nothing is added.
  T& Append(Owner item, std::wstring_view key) {
    if (keysAreNumbers_ && KeyNumber(key) != items_.size() + 1) BuildIndex();
    if (!keysAreNumbers_ && !key.empty() && !index_.try_emplace(ToUpper(key), item.get()).second) {
      throw std::invalid_argument("key is taken");
    }
    return *items_.emplace_back(std::move(item));
  }

 private:
  using Position = std::optional<std::size_t>;

  T* OwnerAt(Position position) const { return position ? items_[*position].get() : nullptr; }

  Position PositionOf(std::int32_t number) const {
    if (number < 1 || number > Count()) return std::nullopt;
    return static_cast<std::size_t>(number) - 1;
  }

  Position PositionOf(std::wstring_view key) const {
    if (keysAreNumbers_) return PositionOf(static_cast<std::int32_t>(KeyNumber(key)));
    const auto found = index_.find(ToUpper(key));
    if (found == index_.end()) return std::nullopt;
    const auto owner = std::ranges::find(items_, found->second, &Owner::get);
    return static_cast<std::size_t>(owner - items_.begin());
  }

  std::size_t Existing(const auto& which) const {
    const Position position = PositionOf(which);
    if (!position) throw std::out_of_range("no item of that number or key");
    return *position;
  }

  void RemoveAt(std::size_t position) {
    if (keysAreNumbers_ && position + 1 < items_.size()) BuildIndex();
    const T* item = items_[position].get();
    std::erase_if(index_, [item](const auto& entry) { return entry.second == item; });
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(position));
  }

  // The number that a key is the plain decimal of, or 0: "7" but neither "07" nor "7 ".
  static std::size_t KeyNumber(std::wstring_view key) {
    constexpr std::size_t kLongest = 9;
    if (key.empty() || key.size() > kLongest || key[0] == L'0') return 0;
    std::size_t number = 0;
    for (const wchar_t digit : key) {
      if (digit < L'0' || digit > L'9') return 0;
      number = number * 10 + static_cast<std::size_t>(digit - L'0');
    }
    return number;
  }

  void BuildIndex() {
    keysAreNumbers_ = false;
    for (std::size_t i = 0; i < items_.size(); ++i) index_.emplace(DecimalText(i + 1), items_[i].get());
  }

  std::vector<Owner> items_;

  // The rows of a script are keyed by their own numbers, up to 32767 of them at each load. As long as every
  // key is the number of its item, the keys are implied and the index stays empty.
  bool keysAreNumbers_ = true;
  std::unordered_map<std::wstring, T*> index_;
};

}  // namespace troth
