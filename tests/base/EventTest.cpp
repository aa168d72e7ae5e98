#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "folivar/base/Event.h"
#include "folivar/base/Internal.h"
#include "tests/support/Random.h"

namespace folivar::test {
namespace {

using TestEvent = Event<int>;
using Subscription = TestEvent::Subscription;

class EventTest : public testing::Test {
 protected:
  // Raises the event and returns what the handlers noted.
  std::string Raise() {
    heard_.clear();
    EXPECT_EQ(event_->Raise(Internal(), 1), nullptr);
    return heard_;
  }

  Subscription Note(char name) {
    return event_->Subscribe([this, name](int) { heard_ += name; });
  }

  std::string heard_;
  std::unique_ptr<TestEvent> event_ = std::make_unique<TestEvent>();
};

TEST_F(EventTest, WithoutSubscribersRaisesNothing) { EXPECT_EQ(Raise(), ""); }

TEST_F(EventTest, CallsHandlersInTheOrderInWhichTheySubscribed) {
  const Subscription a = Note('a');
  const Subscription b = Note('b');
  const Subscription c = Note('c');
  EXPECT_EQ(Raise(), "abc");
  EXPECT_EQ(Raise(), "abc");
}

TEST_F(EventTest, HandsOverItsArguments) {
  Event<int, std::string&> event;
  std::string text = "one";
  const auto subscription =
      event.Subscribe([](int number, std::string& told) { told += std::to_string(number); });
  EXPECT_EQ(event.Raise(Internal(), 7, text), nullptr);
  EXPECT_EQ(text, "one7");
}

TEST_F(EventTest, ASubscriptionThatGoesAwayUnsubscribes) {
  const Subscription a = Note('a');
  {
    const Subscription b = Note('b');
    EXPECT_EQ(Raise(), "ab");
  }
  EXPECT_EQ(Raise(), "a");
}

TEST_F(EventTest, ResetUnsubscribesAndLetsGoOfTheHandler) {
  const auto captured = std::make_shared<int>(0);
  Subscription subscription = event_->Subscribe([captured](int) { ++*captured; });
  EXPECT_EQ(captured.use_count(), 2);
  EXPECT_TRUE(subscription.IsSubscribed());
  subscription.Reset();
  EXPECT_FALSE(subscription.IsSubscribed());
  EXPECT_EQ(captured.use_count(), 1);
  subscription.Reset();
  EXPECT_EQ(Raise(), "");
  EXPECT_EQ(*captured, 0);
}

TEST_F(EventTest, AMovedSubscriptionKeepsItsPlace) {
  Subscription a = Note('a');
  const Subscription b = Note('b');
  const Subscription moved = std::move(a);
  EXPECT_EQ(Raise(), "ab");
  EXPECT_TRUE(moved.IsSubscribed());
  Subscription c = Note('c');
  std::vector<Subscription> many;
  for (int i = 0; i < 20; ++i) many.push_back(Note('-'));
  c = Note('d');
  EXPECT_EQ(Raise(), "ab" + std::string(20, '-') + "d");
  many.clear();
  Subscription& same = c;
  c = std::move(same);
  EXPECT_EQ(Raise(), "abd");
  c = Subscription();
  EXPECT_EQ(Raise(), "ab");
}

TEST_F(EventTest, ASubscriptionMayOutliveItsEvent) {
  Subscription a = Note('a');
  Subscription b = Note('b');
  event_.reset();
  EXPECT_FALSE(a.IsSubscribed());
  Subscription moved = std::move(a);
  EXPECT_FALSE(moved.IsSubscribed());
  b.Reset();
  event_ = std::make_unique<TestEvent>();
  moved = Note('c');
  EXPECT_EQ(Raise(), "c");
}

TEST_F(EventTest, SubscriptionsAreFourPointersAndEventsTwo) {
  static_assert(sizeof(Subscription) == 4 * sizeof(void*));
  static_assert(sizeof(TestEvent) == 2 * sizeof(void*));
  int sum = 0;
  const Subscription small = event_->Subscribe([&sum](int number) { sum += number; });
  Raise();
  EXPECT_EQ(sum, 1);
}

TEST_F(EventTest, AHandlerKeepsWhatItChangesInItself) {
  Event<std::string&> event;
  const auto small = event.Subscribe(
      [calls = std::size_t{0}](std::string& told) mutable { told += std::to_string(++calls); });
  const auto large = event.Subscribe([calls = std::string()](std::string& told) mutable {
    calls += 'x';
    told += calls;
  });
  std::string told;
  for (int i = 0; i < 3; ++i) EXPECT_EQ(event.Raise(Internal(), told), nullptr);
  EXPECT_EQ(told, "1x2xx3xxx");
}

TEST_F(EventTest, AHandlerMayUnsubscribeItself) {
  const auto captured = std::make_shared<std::string>("kept");
  Subscription once;
  once = event_->Subscribe([this, &once, captured](int) {
    once.Reset();
    heard_ += *captured;  // still there, although the subscription is gone
  });
  const Subscription after = Note('a');
  EXPECT_EQ(Raise(), "kepta");
  EXPECT_EQ(Raise(), "a");
  EXPECT_EQ(captured.use_count(), 1);
}

TEST_F(EventTest, AHandlerMayUnsubscribeOthers) {
  std::optional<Subscription> first = Note('a');
  std::optional<Subscription> last;
  const Subscription middle = event_->Subscribe([&](int) {
    heard_ += 'm';
    first.reset();
    last.reset();
  });
  last = Note('z');
  EXPECT_EQ(Raise(), "am") << "the last one is not called any more";
  EXPECT_EQ(Raise(), "m");
}

TEST_F(EventTest, WhoSubscribesInAHandlerHearsFromTheNextTimeOn) {
  std::vector<Subscription> late;
  const Subscription first = event_->Subscribe([&](int) {
    heard_ += 'a';
    late.push_back(Note('l'));
  });
  EXPECT_EQ(Raise(), "a");
  EXPECT_EQ(Raise(), "al");
  EXPECT_EQ(Raise(), "all");
}

TEST_F(EventTest, AHandlerMayReplaceItsOwnSubscription) {
  Subscription own;
  own = event_->Subscribe([&](int) {
    heard_ += 'a';
    own = Note('b');
  });
  EXPECT_EQ(Raise(), "a");
  EXPECT_EQ(Raise(), "b");
}

TEST_F(EventTest, AHandlerMayRaiseTheEventAgain) {
  int depth = 0;
  std::vector<Subscription> subscriptions;
  subscriptions.push_back(Note('a'));
  subscriptions.push_back(event_->Subscribe([&](int) {
    heard_ += '(';
    if (++depth < 3) {
      EXPECT_EQ(event_->Raise(Internal(), 1), nullptr);
    }
    heard_ += ')';
  }));
  subscriptions.push_back(Note('z'));
  EXPECT_EQ(Raise(), "a(a(a()z)z)z");
}

TEST_F(EventTest, AHandlerMayLetGoOfTheEvent) {
  const Subscription a = event_->Subscribe([this](int) {
    heard_ += 'a';
    event_.reset();
  });
  const Subscription b = Note('b');
  heard_.clear();
  EXPECT_EQ(event_->Raise(Internal(), 1), nullptr);
  EXPECT_EQ(heard_, "a") << "with the event gone there is nothing to hear of";
  EXPECT_FALSE(b.IsSubscribed());
}

TEST_F(EventTest, AHandlerThatThrowsKeepsNobodyFromBeingCalled) {
  const Subscription a = Note('a');
  const Subscription first = event_->Subscribe([](int) { throw std::runtime_error("the first"); });
  const Subscription b = Note('b');
  const Subscription second = event_->Subscribe([](int) { throw 2; });
  const Subscription c = Note('c');
  const std::exception_ptr thrown = event_->Raise(Internal(), 1);
  EXPECT_EQ(heard_, "abc");
  ASSERT_NE(thrown, nullptr);
  try {
    std::rethrow_exception(thrown);
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "the first");
  }
}

// Against a list of names that is copied for each call.
TEST(Event, DoesWhatANaiveListDoes) {
  Random random;
  SCOPED_TRACE(random.Trace());
  TestEvent event;
  std::vector<std::pair<int, Subscription>> subscribed;
  std::vector<int> heard;
  std::vector<int> expected;
  int made = 0;
  // A handler may be told to do something while it runs.
  const auto subscribe = [&] {
    const int name = made++;
    subscribed.emplace_back(name, event.Subscribe([&, name](int) {
      heard.push_back(name);
      if (subscribed.empty() || !random.Chance(10)) return;
      const std::size_t victim = random.Below(subscribed.size());
      const int lost = subscribed[victim].first;
      subscribed.erase(subscribed.begin() + static_cast<std::ptrdiff_t>(victim));
      const bool isCalled = std::find(heard.begin(), heard.end(), lost) != heard.end();
      if (!isCalled) expected.erase(std::find(expected.begin(), expected.end(), lost));
    }));
  };
  for (int step = 0; step < 2000; ++step) {
    if (subscribed.size() < 30 && random.Chance(70)) subscribe();
    heard.clear();
    expected.clear();
    for (const auto& each : subscribed) expected.push_back(each.first);
    ASSERT_EQ(event.Raise(Internal(), step), nullptr);
    ASSERT_EQ(heard, expected);
  }
  EXPECT_GT(made, 1000);
}

}  // namespace
}  // namespace folivar::test
