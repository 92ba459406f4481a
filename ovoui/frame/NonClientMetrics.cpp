#include <ovoui/frame/NonClientMetrics.h>

#include <ovocor/ovocor.h>

OvoNonClientMetrics::OvoNonClientMetrics()
    : cbSize(sizeof *this)
{
    if (!::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof *this, this, 0))
        throw WinError(L"SystemParametersInfo", ::GetLastError());
}
