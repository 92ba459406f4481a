#include "Robot.h"

namespace ovo::testkit
{

Story Robot::add(Step step)
{
    std::vector<Step> steps;
    steps.push_back(std::move(step));
    return Story{std::move(steps)};
}

} // namespace ovo::testkit
