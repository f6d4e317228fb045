// The base of all collections of the program: ordered, with optional keys, owner of its items.
// A collection class derives from it and adds an `Add` that makes the item from its arguments. An item keeps
// its address until it is removed; adding and removing make enumerators invalid.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "script/DecimalKey.h"
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
  T& Item(const auto& which) { return Existing(which); }
  const T& Item(const auto& which) const { return Existing(which); }

  // The item, or null if there is none.
  T* Find(const auto& which) { return Look(which); }
  const T* Find(const auto& which) const { return Look(which); }

  std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }

  // Destroys the item; later ones move up by one and keep their keys. Throws std::out_of_range if there is
  // none.
  void Remove(const auto& which) {
    const T* item = &Existing(which);
    if (keysAreNumbers_ && item != items_.back().get()) BuildIndex();
    std::erase_if(index_, [item](const auto& entry) { return entry.second == item; });
    // From the back, since collections are emptied from the last item to the first.
    const auto owner =
        std::find_if(items_.rbegin(), items_.rend(), [item](const Owner& o) { return o.get() == item; });
    items_.erase(std::next(owner).base());
  }

  Enumerator<T> NewEnum() { return {items_.data(), items_.data() + items_.size()}; }
  Enumerator<const T> NewEnum() const { return {items_.data(), items_.data() + items_.size()}; }

  auto begin() { return NewEnum(); }
  auto begin() const { return NewEnum(); }
  std::default_sentinel_t end() const { return {}; }

 protected:
  // Appends the item. A key that is taken throws std::invalid_argument, and nothing is added.
  T& Append(Owner item, std::wstring_view key) {
    if (keysAreNumbers_ && DecimalKey::NumberOf(key) != Count() + 1) BuildIndex();
    if (!keysAreNumbers_ && !key.empty() && !index_.try_emplace(std::wstring(key), item.get()).second) {
      throw std::invalid_argument("key is taken");
    }
    return *items_.emplace_back(std::move(item));
  }

 private:
  T* Look(std::int32_t number) const {
    if (number < 1 || number > Count()) return nullptr;
    return items_[static_cast<std::size_t>(number) - 1].get();
  }

  T* Look(std::wstring_view key) const {
    if (keysAreNumbers_) return Look(DecimalKey::NumberOf(key));
    const auto found = index_.find(key);
    return found == index_.end() ? nullptr : found->second;
  }

  T& Existing(const auto& which) const {
    T* item = Look(which);
    if (!item) throw std::out_of_range("no item of that number or key");
    return *item;
  }

  void BuildIndex() {
    keysAreNumbers_ = false;
    for (const Owner& item : items_) {
      index_.emplace(DecimalKey(static_cast<std::int32_t>(index_.size()) + 1), item.get());
    }
  }

  std::vector<Owner> items_;

  // The rows of a script are keyed by their own numbers, up to 32767 of them at each load. As long as every
  // key is the number of its item, the keys are implied and the index stays empty.
  bool keysAreNumbers_ = true;
  std::unordered_map<std::wstring, T*, HashNoCase, EqualNoCase> index_;
};

}  // namespace troth
