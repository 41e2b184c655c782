// Placeholder until the shell lands.
int main() { return 0; }
