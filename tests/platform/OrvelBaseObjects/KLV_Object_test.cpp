#include "OrvelBaseObjects/KLV_Object.h"

#include <memory>
#include <type_traits>

#include <gtest/gtest.h>

namespace
{

class Noted : public KLV_Object
{
public:
  explicit Noted(bool& ended) : m_ended(&ended) {}

  Noted(const Noted& other) = default;
  Noted& operator=(const Noted& other) = default;

  ~Noted() override { *m_ended = true; }

private:
  bool* m_ended;
};

}  // namespace

TEST(KLV_ObjectTest, CanBeMadeCopiedAndAssigned)
{
  EXPECT_TRUE(std::is_default_constructible_v<KLV_Object>);
  EXPECT_TRUE(std::is_copy_constructible_v<KLV_Object>);
  EXPECT_TRUE(std::is_copy_assignable_v<KLV_Object>);
}

TEST(KLV_ObjectTest, EndsADerivedObjectThatIsHeldAsAnObject)
{
  bool ended = false;
  std::unique_ptr<KLV_Object> object = std::make_unique<Noted>(ended);
  ASSERT_FALSE(ended);

  object.reset();

  EXPECT_TRUE(ended);
}
