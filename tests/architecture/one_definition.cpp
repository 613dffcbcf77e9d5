// Linked with every object of the models: two functions of one name and one signature do not link.
int main() {
    return 0;
}
