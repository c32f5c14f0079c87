#include "smallstack.h"

#include <QThread>

namespace {

constexpr uint SmallStack = 1024 * 1024;

class Worker : public QThread
{
public:
    explicit Worker(const std::function<void()>& work)
        : m_work(work)
    {
    }

private:
    void run() override { m_work(); }

    const std::function<void()>& m_work;
};

} // namespace

void runOnSmallStack(const std::function<void()>& work)
{
    Worker worker(work);
    worker.setStackSize(SmallStack);
    worker.start();
    worker.wait();
}
