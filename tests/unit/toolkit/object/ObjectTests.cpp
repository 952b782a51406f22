#include "toolkit/object/Object.h"

#include <gtest/gtest.h>

#include <utility>

namespace brimsound::tests {

namespace {

using toolkit::keep;
using toolkit::make;
using toolkit::Object;
using toolkit::Ref;

/// Counts its instances.
class Counted : public Object {
public:
    explicit Counted(int& count)
        : _count(count)
    {
        ++_count;
    }

protected:
    ~Counted() override { --_count; }

private:
    int& _count;
};

TEST(AnObject, LivesUntilItsLastReferenceIsReleased)
{
    int count = 0;
    auto* object = new Counted(count);
    EXPECT_EQ(object->retainCount(), 1u);
    object->retain();
    EXPECT_EQ(object->retainCount(), 2u);
    object->release();
    EXPECT_EQ(object->retainCount(), 1u);
    EXPECT_EQ(count, 1);
    object->release();
    EXPECT_EQ(count, 0);
}

TEST(AnObject, HasNoCounterpartAtFirst)
{
    EXPECT_EQ(make<Object>()->counterpart(), nullptr);
}

TEST(AnObject, DestroysItsCounterpartOnceWhileItIsStillWhole)
{
    struct Counterpart {
        int& count;
        int timesDestroyed = 0;
        int countWhenDestroyed = 0;
    };
    int count = 0;
    Counterpart counterpart { count };
    auto object = make<Counted>(count);
    object->setCounterpart(&counterpart, [](void* destroyed) {
        auto& self = *static_cast<Counterpart*>(destroyed);
        ++self.timesDestroyed;
        self.countWhenDestroyed = self.count;
    });
    EXPECT_EQ(object->counterpart(), &counterpart);
    auto other = object;
    object = nullptr;
    EXPECT_EQ(counterpart.timesDestroyed, 0);
    other = nullptr;
    EXPECT_EQ(counterpart.timesDestroyed, 1);
    EXPECT_EQ(counterpart.countWhenDestroyed, 1);
    EXPECT_EQ(count, 0);
}

TEST(AnObject, IsDestroyedOnceWhenItsDestructionTakesAReference)
{
    class Careful : public Counted {
    public:
        using Counted::Counted;

    protected:
        ~Careful() override { keep(this); }
    };
    int count = 0;
    auto object = make<Careful>(count);
    object->setCounterpart(object.get(), [](void* destroyed) { keep(static_cast<Careful*>(destroyed)); });
    object = nullptr;
    EXPECT_EQ(count, 0);
}

TEST(AReference, IsEmptyAtFirst)
{
    const Ref<Object> reference;
    EXPECT_FALSE(reference);
    EXPECT_EQ(reference.get(), nullptr);
    EXPECT_TRUE(reference == nullptr);
    EXPECT_FALSE(keep<Object>(nullptr));
}

TEST(AReference, IsTheFirstOneToWhatItMakesAndAnotherOneToWhatItKeeps)
{
    const auto made = make<Object>();
    EXPECT_EQ(made->retainCount(), 1u);
    {
        const auto kept = keep(made.get());
        EXPECT_EQ(made->retainCount(), 2u);
        EXPECT_TRUE(kept == made);
        EXPECT_TRUE(kept == made.get());
    }
    EXPECT_EQ(made->retainCount(), 1u);
}

TEST(AReference, RetainsWhenItIsCopiedAndNotWhenItIsMoved)
{
    auto made = make<Object>();
    const auto copy = made;
    EXPECT_EQ(copy->retainCount(), 2u);
    const auto moved = std::move(made);
    EXPECT_EQ(copy->retainCount(), 2u);
    EXPECT_FALSE(made); // NOLINT(bugprone-use-after-move): empty, as the standard's own are
    EXPECT_TRUE(moved == copy);
}

TEST(AReference, ReleasesWhatItHeldWhenItIsAssigned)
{
    int count = 0;
    auto reference = make<Counted>(count);
    const auto second = make<Counted>(count);
    EXPECT_EQ(count, 2);
    reference = second;
    EXPECT_EQ(count, 1);
    EXPECT_EQ(second->retainCount(), 2u);
    const auto& self = reference;
    reference = self;
    EXPECT_EQ(second->retainCount(), 2u);
    reference = nullptr;
    EXPECT_EQ(second->retainCount(), 1u);
}

TEST(AReference, BecomesOneToTheBaseClass)
{
    int count = 0;
    Ref<Object> object = make<Counted>(count);
    EXPECT_EQ(object->retainCount(), 1u);
    EXPECT_EQ(count, 1);
    object = nullptr;
    EXPECT_EQ(count, 0);
}

} // namespace

} // namespace brimsound::tests
