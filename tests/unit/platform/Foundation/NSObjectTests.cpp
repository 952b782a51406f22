#include "platform/Foundation/NSObject.h"

#include <gmock/gmock.h>

#include <array>
#include <string>

namespace brimsound {

namespace {

class Greeter : public NSObject {
public:
    explicit Greeter(bool& destroyed)
        : _destroyed(destroyed)
    {
    }
    ~Greeter() override { _destroyed = true; }

    std::span<const Method> methods() const override
    {
        static const std::array table {
            method<&Greeter::greet>("greet:"),
            method<&Greeter::greetTwice>("greetTwice:"),
            method<&Greeter::call>("call:"),
            method<&Greeter::greeting>("greeting"),
        };
        return table;
    }

    void greet(const PropertyList& whom) { _greeting += whom.isNull() ? "nobody" : *whom.asString(); }
    void call(const std::string& name) { _greeting += name + "!"; }
    void greetTwice(Greeter& other)
    {
        greet("hello");
        other.greet("hello");
    }
    PropertyList greeting() { return _greeting; }

private:
    bool& _destroyed;
    std::string _greeting;
};

} // namespace

TEST(AnObject, HasOneReferenceAtFirstAndIsDestroyedWithTheLastOne)
{
    bool destroyed = false;
    auto object = make<Greeter>(destroyed);
    EXPECT_EQ(object->retainCount(), 1u);
    {
        const auto second = object;
        EXPECT_EQ(object->retainCount(), 2u);
    }
    EXPECT_EQ(object->retainCount(), 1u);
    EXPECT_FALSE(destroyed);

    object = nullptr;
    EXPECT_TRUE(destroyed);
}

TEST(AnObject, RespondsToTheSelectorsOfItsTableOnly)
{
    bool destroyed = false;
    const auto object = make<Greeter>(destroyed);
    EXPECT_TRUE(object->respondsToSelector("greet:"));
    EXPECT_FALSE(object->respondsToSelector("greet"));
    EXPECT_FALSE(object->respondsToSelector(""));
    EXPECT_EQ(object->methodForSelector("leave"), nullptr);
}

TEST(CallingAMethodByName, PassesItsArgumentsAndReturnsItsResult)
{
    bool destroyed = false;
    const auto object = make<Greeter>(destroyed);
    const PropertyList name = "world";
    const std::array<Argument, 2> arguments { &name, object.get() };

    EXPECT_TRUE(object->methodForSelector("greet:")->invoke(*object, arguments).isNull());
    EXPECT_EQ(object->methodForSelector("greeting")->invoke(*object, {}), PropertyList("world"));
}

TEST(CallingAMethodByName, DoesNothingWhenAnArgumentIsMissingOrOfTheOtherKind)
{
    bool destroyed = false;
    const auto object = make<Greeter>(destroyed);
    const std::array<Argument, 1> anObject { object.get() };
    const std::array<Argument, 1> nil {};
    const PropertyList number = 7;
    const std::array<Argument, 1> aNumber { &number };

    object->methodForSelector("greet:")->invoke(*object, anObject);
    object->methodForSelector("greetTwice:")->invoke(*object, {});
    object->methodForSelector("greetTwice:")->invoke(*object, nil);
    object->methodForSelector("greetTwice:")->invoke(*object, aNumber);
    object->methodForSelector("call:")->invoke(*object, {});
    object->methodForSelector("call:")->invoke(*object, nil);
    object->methodForSelector("call:")->invoke(*object, anObject);
    object->methodForSelector("call:")->invoke(*object, aNumber);
    EXPECT_EQ(object->greeting(), PropertyList(""));
}

TEST(CallingAMethodByName, PassesNilAsANullPropertyList)
{
    bool destroyed = false;
    const auto object = make<Greeter>(destroyed);
    const std::array<Argument, 1> nil {};
    object->methodForSelector("greet:")->invoke(*object, {});
    object->methodForSelector("greet:")->invoke(*object, nil);
    EXPECT_EQ(object->greeting(), PropertyList("nobodynobody"));
}

TEST(CallingAMethodByName, PassesTheStringInAPropertyList)
{
    bool destroyed = false;
    const auto object = make<Greeter>(destroyed);
    const PropertyList name = "world";
    const std::array<Argument, 1> arguments { &name };
    object->methodForSelector("call:")->invoke(*object, arguments);
    EXPECT_EQ(object->greeting(), PropertyList("world!"));
}

} // namespace brimsound
