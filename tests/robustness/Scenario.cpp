// Something that a user or a host does, tried with every call failing in turn.
#include "Scenario.h"

#include <iostream>

namespace {

/// Does it as a host would, with exceptions that the libraries let pass caught. False when there was one.
bool Done(Scenario& scenario) {
    try {
        scenario.Act();
        return true;
    } catch (CException* exception) {
        const calltable::Pause pause;
        exception->Delete();
    } catch (const std::exception&) {
    }
    return false;
}

class Trial {
public:
    explicit Trial(Scenario& scenario) : m_scenario(scenario) {}

    void Run() {
        for (int i = 0; i < 3; ++i) { // what is made once per process is made
            ASSERT_TRUE(Done(m_scenario)) << m_scenario.Name();
            BecomeIdle();
            ASSERT_EQ(m_scenario.Wrong(), "") << m_scenario.Name();
        }
        BecomeIdle();
        calltable::Begin(0);
        Done(m_scenario);
        const unsigned calls = calltable::End().calls;
        BecomeIdle();
        ASSERT_EQ(m_scenario.Wrong(), "") << m_scenario.Name();
        ASSERT_GT(calls, 0u) << m_scenario.Name();
        const unsigned step = IsLong() || calls <= ShortScenario ? 1 : calls / SliceOfCalls;
        unsigned failed = 0;
        // Beyond the count as well: a failure may lead to calls that success does without.
        for (unsigned call = 1; call <= calls + calls / 8; call += step)
            failed += Fail(call);
        std::cout << "[ failing  ] " << m_scenario.Name() << ": " << calls << " calls, " << failed << " made to fail"
                  << std::endl;
        EXPECT_GT(failed, 0u);
    }

private:
    // As a test, every call of a short scenario fails, and so many calls of a longer one.
    static constexpr unsigned ShortScenario = 100;
    static constexpr unsigned SliceOfCalls = 40;

    unsigned Fail(unsigned call) {
        BecomeIdle();
        const Counts before;
        calltable::Begin(call);
        Done(m_scenario);
        const calltable::Outcome outcome = calltable::End();
        if (outcome.failed == nullptr)
            return 0;
        const auto what = [&] {
            return std::string(m_scenario.Name()) + ", call " + std::to_string(call) + ", " + outcome.failed +
                   " fails, called by " + outcome.Where();
        };
        BecomeIdle();
        EXPECT_EQ(::GetCapture(), nullptr) << what();
        ::ReleaseCapture();
        EXPECT_EQ(m_scenario.Broken(), "") << what();
        EXPECT_TRUE(Done(m_scenario)) << what();
        BecomeIdle();
        EXPECT_EQ(m_scenario.Wrong(), "") << what();
        BecomeIdle();
        EXPECT_EQ(Counts().ChangesSince(before), "") << what();
        return 1;
    }

    Scenario& m_scenario;
};

} // namespace

void FailEachCall(Scenario& scenario) { Trial(scenario).Run(); }
