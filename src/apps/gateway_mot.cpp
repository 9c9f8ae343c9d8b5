#include "apps/gateway_program.h"

int main(int argc, char** argv) {
    return quorrin::runGateway(quorrin::kMotionGateway, argc, argv);
}
