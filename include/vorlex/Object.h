#pragma once
// Base of the objects a tagged value can carry (fonts, pictures).

#include <memory>

namespace vorlex {

class Object;

// A host's own counterpart of an object (the COM font object that a script
// holds, say), attached to it so that the two stay one object: the peer lives
// as long as the object and hears of every change made through the object.
class ObjectPeer {
 public:
  virtual ~ObjectPeer() = default;
  virtual void ObjectChanged(const Object& object) = 0;
};

class Object {
 public:
  virtual ~Object() = default;
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  ObjectPeer* Peer() const { return peer_.get(); }
  // Replaces the peer (null removes it); the old one is destroyed.
  void SetPeer(std::unique_ptr<ObjectPeer> peer) { peer_ = std::move(peer); }

 protected:
  // Called by every member that changes the object.
  void NotifyChanged() const {
    if (peer_) peer_->ObjectChanged(*this);
  }

 private:
  std::unique_ptr<ObjectPeer> peer_;
};

}  // namespace vorlex
