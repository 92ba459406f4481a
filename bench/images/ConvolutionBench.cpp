// The sharpening filter beside the 3 by 3 convolution of OpenCV with the same weights, on one thread each.
#include <ovoui/images/core/SharpenFilter.h>

#include <opencv2/imgproc.hpp>

#include <catch2/catch.hpp>

using namespace ovoui::images;

namespace
{

void compare(int size)
{
    cv::setNumThreads(1);
    cv::Mat picture(size, size, CV_8UC4);
    cv::randu(picture, 0, 256);
    cv::Mat result;
    const cv::Mat weights = (cv::Mat_<float>(3, 3) << -0.075f, -0.075f, -0.075f, -0.075f, 1.6f, -0.075f,
                             -0.075f, -0.075f, -0.075f);
    BENCHMARK("filter2D of OpenCV")
    {
        cv::filter2D(picture, result, -1, weights, cv::Point(-1, -1), 0, cv::BORDER_REPLICATE);
        return result.data[4];
    };
    const PixelBlock block{picture.ptr<std::uint32_t>(), size, size, size};
    BENCHMARK("sharpen [at most 1]")
    {
        sharpen(block);
        return picture.data[4];
    };
}

} // namespace

TEST_CASE("beside a convolution of 32 by 32 pixels")
{
    compare(32);
}

TEST_CASE("beside a convolution of 1024 by 1024 pixels")
{
    compare(1024);
}
